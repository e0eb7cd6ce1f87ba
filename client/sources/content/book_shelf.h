// The books of a file that is being read.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "client/collection/incoming_books.h"

namespace client {

// Texts that identify a note without a uuid within its book.
using Identity = std::vector<std::string>;

// A book to which notes are added.
class ShelvedBook {
public:
    explicit ShelvedBook(Book book) : content_{std::move(book), {}, {}} {}

    // Adds the note. If it has no uuid, one is derived from the book and `identity`, equal
    // on every machine. If the book already has a note with the uuid, an equal note is
    // dropped, and another one gets a uuid derived from its content.
    void add(Note note, const Identity& identity);

    IncomingBook take() { return std::move(content_); }

private:
    IncomingBook content_;
    std::unordered_map<std::string, std::string> contents_;  // of the notes, by uuid
};

// References to its books stay valid.
class BookShelf {
public:
    // Returns the book with this title and author; its hash is derived from them.
    ShelvedBook& book(const std::string& title, const std::string& author);

    // Returns the book with this hash.
    ShelvedBook& book(const std::string& hash, const std::string& title,
                      const std::string& author);

    // Returns the books in the order in which they were added, and removes them.
    std::vector<IncomingBook> take();

private:
    std::deque<ShelvedBook> books_;
    std::unordered_map<std::string, std::size_t> indices_;  // by hash
};

}  // namespace client
