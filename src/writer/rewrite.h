// One pass over text that puts markup in place of some of its bytes.
#pragma once

#include <cstddef>
#include <cstring>

namespace markup {

// What stands in the document for the first `length` bytes of a text; null `text` where
// they stand for themselves.
struct Replacement {
    const char* text = nullptr;
    std::size_t length = 1;
};

// The entity for a markup character at the start of `text`.
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

// Hands `text`, up to its zero byte, to `put(bytes, length)` with every replacement that
// `replacementAt` finds, in as few pieces as the replacements allow.
template <class ReplacementAt, class Put>
void rewrite(const char* text, ReplacementAt replacementAt, Put put) {
    const char* run = text;
    while (*text != '\0') {
        const Replacement replacement = replacementAt(text);
        if (replacement.text != nullptr) {
            put(run, static_cast<std::size_t>(text - run));
            put(replacement.text, std::strlen(replacement.text));
            run = text + replacement.length;
        }
        text += replacement.length;
    }
    put(run, static_cast<std::size_t>(text - run));
}

}  // namespace markup
