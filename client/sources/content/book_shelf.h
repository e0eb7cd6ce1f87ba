// The books of a file whose books and notes have no names of their own.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "client/collection/note.h"
#include "client/sources/source.h"

// A name for what a file does not name, as hexadecimal digits: equal parts give equal
// names, on every machine.
std::string derivedName(const std::vector<std::string_view>& parts);

class BookShelf {
public:
    // The place of the book of that title and author, which give it its hash.
    std::size_t bookOf(const std::string& title, const std::string& author);

    // The same of a book whose hash is known.
    std::size_t bookNamed(const std::string& hash, const std::string& title,
                          const std::string& author);

    const std::string& hashOf(std::size_t place) const;

    // Adds the note to the book at `place`. If the book has its uuid already, the note is
    // dropped when it says the same, and gets a uuid derived from its text when it does
    // not.
    void add(std::size_t place, SourceNote note);

    // The books, in the order in which they were asked for. Leaves none behind.
    std::vector<SourceBook> take();

private:
    std::vector<SourceBook> books_;
    std::vector<std::unordered_map<std::string, std::string>> notes_;  // content, by uuid
    std::unordered_map<std::string, std::size_t> places_;              // by hash
};
