// The numbers and texts of Lua.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace client {

// Returns the text without the spaces and the comments at its start.
std::string_view withoutLuaSpace(std::string_view text);

// Reads a file from its start to its end. Throws UserError with the line and the column if
// a literal has a fault.
class LuaLiterals {
public:
    // Starts after a byte order mark. Texts are decoded within `text`.
    LuaLiterals(std::string& text, const std::string& path);

    [[noreturn]] void fail(const char* what) const;

    // Each function skips the space before what it reads.

    bool isNext(std::string_view token);
    bool isTextNext();
    bool skip(std::string_view token);
    void expect(const char* token, const char* what);
    void expectEnd();

    // Returns infinity for a number that is too large.
    double number();

    // Must be called if a text is next. The result is valid as long as the file's text.
    std::string_view text();

private:
    std::string_view rest() const { return std::string_view(text_).substr(at_); }
    std::string_view quoted();
    std::optional<char> escaped();
    char code(std::size_t digits, int base);

    std::string& text_;
    const std::string& path_;
    std::size_t at_;
};

}  // namespace client
