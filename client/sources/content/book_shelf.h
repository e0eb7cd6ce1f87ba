// The books of a file, while it is read.
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "client/collection/incoming_books.h"

namespace client {

// What distinguishes a note without a uuid from the other notes of its book.
using Identity = std::vector<std::string>;

// A book to which notes are added.
class ShelvedBook {
public:
    explicit ShelvedBook(Book book) : content_{std::move(book), {}, {}} {}

    // Adds the note. If it has no uuid, one is derived from the book and `identity`, equal
    // on every machine. If the book has the uuid already, the note is dropped if it says
    // the same, and gets a uuid derived from its content if it does not.
    void add(Note note, const Identity& identity);

    IncomingBook take() { return std::move(content_); }

private:
    IncomingBook content_;
    std::unordered_map<std::string, std::string> contents_;  // of the notes, by uuid
};

// References to its books stay valid.
class BookShelf {
public:
    // Returns the book of that title and author, which give it its hash.
    ShelvedBook& book(const std::string& title, const std::string& author);

    // Returns the book of that hash.
    ShelvedBook& book(const std::string& hash, const std::string& title,
                      const std::string& author);

    // Takes the books, in the order in which they came.
    std::vector<IncomingBook> take();

private:
    std::deque<ShelvedBook> books_;
    std::unordered_map<std::string, ShelvedBook*> byHash_;
};

}  // namespace client
