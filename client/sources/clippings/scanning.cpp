#include "client/sources/clippings/scanning.h"

#include <algorithm>
#include <charconv>

namespace client {

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

}  // namespace client
