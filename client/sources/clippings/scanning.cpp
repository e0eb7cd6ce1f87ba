#include "client/sources/clippings/scanning.h"

#include <algorithm>
#include <charconv>

namespace client {
namespace {

// Adds the groups of three digits after a comma or a full stop: "1,234".
void addGroups(NumberInText& number) {
    constexpr std::size_t kGroup = 3;
    constexpr std::size_t kMaxDigits = 15;
    constexpr std::string_view kSeparators = ",.";
    bool mayHaveGroups = number.digits <= kGroup;
    while (mayHaveGroups && number.digits <= kMaxDigits && !number.rest.empty() &&
           kSeparators.find(number.rest.front()) != std::string_view::npos) {
        std::size_t at = 1;
        const auto group = nextNumber(number.rest, at);
        mayHaveGroups = group && group->offset == 1 && group->digits == kGroup;
        if (mayHaveGroups) {
            number.value = number.value * 1000 + group->value;
            number.digits += kGroup;
            number.rest = group->rest;
        }
    }
}

}  // namespace

std::optional<NumberInText> nextNumber(std::string_view text, std::size_t& at) {
    constexpr std::string_view kDigits = "0123456789";
    constexpr std::size_t kMaxDigits = 18;
    const std::size_t offset = text.find_first_of(kDigits, at);
    if (offset == std::string_view::npos) {
        return std::nullopt;
    }
    const std::size_t end = std::min(text.find_first_not_of(kDigits, offset), text.size());
    at = end;
    const std::size_t digits = end - offset;
    const char* const start = text.data() + offset;
    std::int64_t value = 0;
    std::from_chars(start, start + std::min(digits, kMaxDigits), value);
    return NumberInText{value, digits, offset, offset == 0 ? '\0' : text[offset - 1],
                        text.substr(end)};
}

std::optional<NumberInText> nextGroupedNumber(std::string_view text, std::size_t& at) {
    auto number = nextNumber(text, at);
    if (number) {
        addGroups(*number);
        at = text.size() - number->rest.size();
    }
    return number;
}

}  // namespace client
