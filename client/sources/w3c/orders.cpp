#include "client/sources/w3c/orders.h"

#include <algorithm>
#include <cstddef>

#include "client/sources/w3c/json_ld.h"
#include "client/sources/w3c/target.h"
#include "client/text/sort_keys.h"

namespace client {
namespace {

// Limits, because the collection cuts orders of more than 1,000 bytes. A byte of a name may
// take three.
constexpr std::size_t kMaxFileNumbers = 110;
constexpr std::size_t kMaxFileName = 100;
constexpr std::size_t kMaxNumbers = 550;

// Sorts files by the numbers in their names first: ch2.xhtml, ch2_1.xhtml, ch10.xhtml. "-"
// is less than the full stop before another number.
std::string keyOfFile(const std::string& source) {
    const std::string numbers = sortKeyOfNumbers(source).substr(0, kMaxFileNumbers);
    return (numbers.empty() ? "." : numbers) + '-' +
           source.substr(source.size() - std::min(source.size(), kMaxFileName));
}

}  // namespace

Orders::Orders(const std::vector<const JsonValue*>& annotations) {
    std::ptrdiff_t moreCfis = 0;
    for (const JsonValue* annotation : annotations) {
        const JsonValue& target = targetOf(*annotation);
        moreCfis += cfiIn(target).empty() ? 0 : 1;
        moreCfis -= progressionIn(target).empty() ? 0 : 1;
    }
    areCfis_ = moreCfis >= 0;
}

// A set that grows may name a second file, so each order names its own.
std::string Orders::of(const JsonValue& annotation) const {
    const JsonValue& target = targetOf(annotation);
    const std::string position = areCfis_ ? cfiIn(target) : progressionIn(target);
    if (position.empty()) {
        return {};
    }
    const bool isWithinFile = position.find('!') == std::string::npos;
    return (areCfis_ ? "c" : "p") + (isWithinFile ? keyOfFile(sourceOf(target)) : "") +
           (areCfis_ ? sortKeyOfNumbers(position).substr(0, kMaxNumbers) : '.' + position);
}

}  // namespace client
