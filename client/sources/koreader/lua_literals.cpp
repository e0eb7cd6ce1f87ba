#include "client/sources/koreader/lua_literals.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "client/error.h"
#include "client/sources/content/json.h"
#include "client/text/affixes.h"
#include "client/text/ascii.h"
#include "client/text/numbers.h"

namespace client {
namespace {

constexpr std::string_view kSpaces = " \t\n\v\f\r";
constexpr std::string_view kDigits = "0123456789";

// A text in long brackets, such as [=[text]=].
struct LongText {
    std::size_t start;
    std::size_t length;
    std::size_t next;  // after the brackets; npos if those at the end are missing
};

// Returns nullopt if the text does not start with long brackets.
std::optional<LongText> longText(std::string_view text) {
    const std::size_t second = text.find_first_not_of('=', 1);
    if (!startsWith(text, "[") || second == text.npos || text[second] != '[') {
        return std::nullopt;
    }
    const std::string end = ']' + std::string(second - 1, '=') + ']';
    const std::size_t start = second + (startsWith(text.substr(second + 1), "\n") ? 2 : 1);
    const std::size_t found = text.find(end, start);
    return found == text.npos ? LongText{start, 0, text.npos}
                              : LongText{start, found - start, found + end.size()};
}

}  // namespace

std::string_view withoutLuaSpace(std::string_view text) {
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(kSpaces), text.size()));
        if (!startsWith(text, "--")) {
            return text;
        }
        text.remove_prefix(2);
        const auto block = longText(text);
        const std::size_t end = block ? block->next : text.find('\n');
        text.remove_prefix(std::min(end, text.size()));
    }
}

LuaLiterals::LuaLiterals(std::string& text, const std::string& path)
    : text_(text), path_(path), at_(text.size() - withoutByteOrderMark(text).size()) {}

void LuaLiterals::fail(const char* what) const {
    throw UserError("Cannot read " + path_ + " as a table of Lua: " + placeIn(path_, at_) +
                    ": " + what);
}

bool LuaLiterals::isNext(std::string_view token) {
    at_ = text_.size() - withoutLuaSpace(rest()).size();
    return startsWith(rest(), token);
}

bool LuaLiterals::isTextNext() {
    return isNext("\"") || isNext("'") || longText(rest()).has_value();
}

bool LuaLiterals::skip(std::string_view token) {
    const bool isThere = isNext(token);
    at_ += isThere ? token.size() : 0;
    return isThere;
}

void LuaLiterals::expect(const char* token, const char* what) {
    if (!skip(token)) {
        fail(what);
    }
}

void LuaLiterals::expectEnd() {
    if (!isNext("") || !rest().empty()) {
        fail("expected the end of the file.");
    }
}

double LuaLiterals::number() {
    const bool isNegative = skip("-");
    const bool isHexadecimal = skip("0x") || skip("0X");
    const std::string_view first =
        isHexadecimal ? "0123456789abcdefABCDEF." : "0123456789.";
    double value = HUGE_VAL;  // stays if the number is too large
    const char* const begin = text_.data() + at_;
    const auto parsed = std::from_chars(
        begin, text_.data() + text_.size(), value,
        isHexadecimal ? std::chars_format::hex : std::chars_format::general);
    if (first.find(*begin) == first.npos || parsed.ptr == begin) {
        fail("expected a text, a number, true, false, nil or a table.");
    }
    at_ += static_cast<std::size_t>(parsed.ptr - begin);
    return isNegative ? -value : value;
}

std::string_view LuaLiterals::text() {
    const auto found = longText(rest());
    if (!found) {
        return quoted();
    }
    if (found->next == rest().npos) {
        fail("the text has no end.");
    }
    const std::string_view text = rest().substr(found->start, found->length);
    at_ += found->next;
    return text;
}

// Moves the text to where it starts, because escapes are longer than what they stand for.
std::string_view LuaLiterals::quoted() {
    const char ends[] = {text_[at_], '\\', '\n'};
    const std::size_t start = at_ + 1;
    std::size_t end = start;
    for (std::size_t next = start;;) {
        const std::size_t stop = text_.find_first_of(ends, next, sizeof ends);
        if (stop == text_.npos || text_[stop] == '\n') {
            at_ = start - 1;
            fail("the text has no end.");
        }
        std::copy(&text_[next], &text_[stop], &text_[end]);
        end += stop - next;
        at_ = stop + 1;
        if (text_[stop] != '\\') {
            return {&text_[start], end - start};
        }
        if (const auto letter = escaped()) {
            text_[end++] = *letter;
        }
        next = at_;
    }
}

// Reads what follows a backslash. Returns nullopt if it stands for nothing.
std::optional<char> LuaLiterals::escaped() {
    constexpr std::string_view kLetters = "abfnrtv\\\"'\n";
    constexpr std::string_view kMeanings = "\a\b\f\n\r\t\v\\\"'\n";
    const std::string_view next = rest();
    const std::size_t digits = std::min(next.substr(0, 3).find_first_not_of(kDigits),
                                        std::min<std::size_t>(next.size(), 3));
    if (digits > 0) {
        return code(digits, 10);
    }
    if (startsWith(next, "x")) {
        ++at_;
        return code(2, 16);
    }
    if (startsWith(next, "z")) {
        at_ += 1 + std::min(next.substr(1).find_first_not_of(kSpaces), next.size() - 1);
        return std::nullopt;
    }
    at_ += startsWith(next, "\r\n") ? 1 : 0;
    const std::size_t meaning = kLetters.find(text_[at_]);
    if (meaning == kLetters.npos) {
        fail("unknown escape.");
    }
    ++at_;
    return kMeanings[meaning];
}

char LuaLiterals::code(std::size_t digits, int base) {
    const auto value = parseNumber<unsigned char>(rest().substr(0, digits), base);
    if (!value) {
        fail("not the code of a byte.");
    }
    at_ += digits;
    return static_cast<char>(*value);
}

}  // namespace client
