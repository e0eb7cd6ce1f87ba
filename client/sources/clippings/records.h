// The records of a clippings file.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace client {

// Iterates over the records of a text, whose lines end with line feeds.
class Records {
public:
    explicit Records(std::string_view text) : rest_(text) {}

    // Moves to the next record, or returns false if there is none. Empty lines and
    // separators before a record are skipped.
    bool next();

    // Returns the record without the separator after it.
    std::string_view text() const { return text_; }

    // Returns the number of its first line.
    std::size_t firstLine() const { return firstLine_; }

    bool hasSeparator() const { return hasSeparator_; }

private:
    // The end of a record and the start of the next one, as offsets in a line.
    struct Boundary {
        std::size_t end;
        std::size_t next;
        bool isSeparator;
    };

    void skipToRecord();
    std::optional<Boundary> boundaryIn(std::string_view line) const;

    std::string_view rest_;
    std::string_view text_;
    std::size_t line_ = 1;  // number of the rest's first line
    std::size_t firstLine_ = 1;
    bool hasSeparator_ = false;
};

}  // namespace client
