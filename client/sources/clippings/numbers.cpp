#include "client/sources/clippings/numbers.h"

#include <algorithm>
#include <charconv>

std::optional<NumberInText> nextNumber(std::string_view text, std::size_t& at) {
    constexpr std::string_view kDigits = "0123456789";
    constexpr std::size_t kMostDigits = 18;
    const std::size_t place = text.find_first_of(kDigits, at);
    if (place == std::string_view::npos) {
        return std::nullopt;
    }
    const std::size_t end = std::min(text.find_first_not_of(kDigits, place), text.size());
    at = end;
    const std::size_t digits = end - place;
    const char* const start = text.data() + place;
    std::int64_t value = 0;
    std::from_chars(start, start + std::min(digits, kMostDigits), value);
    return NumberInText{value, digits, place, place == 0 ? '\0' : text[place - 1],
                        text.substr(end)};
}
