#include "client/sources/w3c/orders.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "client/sources/w3c/json_ld.h"
#include "client/sources/w3c/target.h"
#include "client/text/sort_keys.h"

namespace client {
namespace {

// Limits, because the collection cuts orders of 1,000 bytes and more. A byte of a name may
// take three.
constexpr std::size_t kMaxFileNumbers = 110;
constexpr std::size_t kMaxFileName = 100;
constexpr std::size_t kMaxNumbers = 550;

// Sorts files by the numbers in their names first: "ch2.xhtml" before "ch10.xhtml".
std::string keyOfFile(const std::string& source) {
    return sortKeyOfNumbers(source).substr(0, kMaxFileNumbers) + '.' +
           source.substr(source.size() - std::min(source.size(), kMaxFileName));
}

}  // namespace

Orders::Orders(const std::vector<const JsonValue*>& annotations) {
    std::ptrdiff_t moreCfis = 0;
    std::string firstSource;
    for (const JsonValue* annotation : annotations) {
        const JsonValue& target = targetOf(*annotation);
        moreCfis += cfiIn(target).empty() ? 0 : 1;
        moreCfis -= progressionIn(target).empty() ? 0 : 1;
        std::string source = sourceOf(target);
        if (firstSource.empty()) {
            firstSource = std::move(source);
        } else {
            areWithinFiles_ |= !source.empty() && source != firstSource;
        }
    }
    areCfis_ = moreCfis >= 0;
}

std::string Orders::of(const JsonValue& annotation) const {
    const JsonValue& target = targetOf(annotation);
    const std::string position = areCfis_ ? cfiIn(target) : progressionIn(target);
    if (position.empty()) {
        return {};
    }
    const bool isWithinFile = areWithinFiles_ && position.find('!') == std::string::npos;
    return (areCfis_ ? "c" : "p") + (isWithinFile ? keyOfFile(sourceOf(target)) : "") +
           (areCfis_ ? sortKeyOfNumbers(position).substr(0, kMaxNumbers) : '.' + position);
}

}  // namespace client
