#include "client/text/sort_keys.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace client {
namespace {

constexpr std::size_t kDigits = 10;
constexpr std::string_view kAllDigits = "0123456789";

std::string keyOf(std::string_view digits, std::size_t width = kDigits) {
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    return digits.size() > width ? std::string(width, '9')
                                 : std::string(width - digits.size(), '0').append(digits);
}

// Calls `visit` with the text before each number and with its digits. Returns the rest.
template <class Visit>
std::string_view eachNumber(std::string_view text, const Visit& visit) {
    for (std::size_t at = 0;
         (at = text.find_first_of(kAllDigits)) != std::string_view::npos;) {
        const std::string_view digits =
            text.substr(at, text.find_first_not_of(kAllDigits, at) - at);
        visit(text.substr(0, at), digits);
        text.remove_prefix(at + digits.size());
    }
    return text;
}

}  // namespace

std::string sortKey(std::uint64_t number) { return keyOf(std::to_string(number)); }

std::string sortKeyOfNumbers(std::string_view text) {
    std::string keys;
    eachNumber(text, [&](std::string_view /*before*/, std::string_view digits) {
        keys.append(".").append(keyOf(digits));
    });
    return keys;
}

std::string sortKeyOfName(std::string_view text) {
    std::string name;
    const std::string_view rest =
        eachNumber(text, [&](std::string_view before, std::string_view digits) {
            name.append(before).append(keyOf(digits));
        });
    return name.append(rest);
}

std::string sortKeyOfFraction(double fraction) {
    constexpr double kParts = 1e6;
    const bool isInRange = fraction > 0;  // and not NaN
    const double parts = isInRange ? std::min(fraction, 1.0) * kParts : 0;
    return keyOf(std::to_string(std::lround(parts)), 7);
}

}  // namespace client
