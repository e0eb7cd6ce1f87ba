// Replaces bytes of a text by markup, in one pass.
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

namespace markup {

// The markup for the first `length` bytes of a text. An empty `text` keeps the bytes.
struct Replacement {
    std::string_view text;
    std::size_t length = 1;
};

// Returns the entity for a markup character at the start of `text`.
inline Replacement entityAt(const char* text) {
    switch (*text) {
        case '&':
            return {"&amp;"};
        case '<':
            return {"&lt;"};
        case '>':
            return {"&gt;"};
        case '\'':
            return {"&apos;"};
        case '"':
            return {"&quot;"};
        default:
            return {};
    }
}

// A rule for rewriting. `replacementAt` returns the replacement at the start of a text, and
// is called only for bytes in `starts`.
struct Rewriting {
    const char* starts;
    Replacement (*replacementAt)(const char* text);
};

inline constexpr Rewriting kEscaping = {"&<>'\"", entityAt};

// Calls `put(unchanged, markup)`, with two string views, for each replacement in `text` and
// for the rest, up to its zero byte.
template <class Put>
void rewrite(const char* text, const Rewriting& rewriting, Put put) {
    const char* run = text;
    while (*(text += std::strcspn(text, rewriting.starts)) != '\0') {
        const Replacement replacement = rewriting.replacementAt(text);
        if (!replacement.text.empty()) {
            put(std::string_view(run, static_cast<std::size_t>(text - run)),
                replacement.text);
            run = text + replacement.length;
        }
        text += replacement.length;
    }
    put(std::string_view(run, static_cast<std::size_t>(text - run)), std::string_view());
}

}  // namespace markup
