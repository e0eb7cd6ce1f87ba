// The books of a file that is being read.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "client/collection/incoming_books.h"
#include "client/files/digest.h"

namespace client {

// Texts that identify a note without a uuid within its book.
using Identity = std::vector<std::string>;

// A book to which notes are added.
class ShelvedBook {
public:
    // The hash from which uuids are derived is that of `book`.
    explicit ShelvedBook(IncomingBook book) : content_(std::move(book)) {}

    // Sets the note's uuid. If it has none, one is derived from the book and `identity`,
    // equal on every machine; if the collection has the note under the uuid of one of the
    // `former` identities, it keeps that. If the book already has a note with the uuid,
    // another note gets a uuid derived from its content. Returns false if the notes are
    // equal.
    bool identify(Note& note, const Identity& identity,
                  const std::vector<Identity>& former = {});

    // Adds the note with the uuid that identify() gives, unless the book has it.
    void add(Note note, const Identity& identity = {});

    IncomingBook& content() { return content_; }

    // Returns the content, and forgets what identify() needs.
    IncomingBook& finish() {
        contents_ = {};
        return content_;
    }

private:
    std::string derivedUuid(const Identity& identity) const;

    IncomingBook content_;
    // Digests of the contents, by the digests of the uuids.
    std::unordered_map<DigestValue, DigestValue, DigestValue::Hash> contents_;
};

// Returns the hash that a book has only because of its title and author.
std::string derivedBookHash(const std::string& title, const std::string& author);

// References to its books stay valid.
class BookShelf {
public:
    // Returns the book with this title and author; its hash is derived from them.
    ShelvedBook& book(const std::string& title, const std::string& author);

    // Returns the book with this hash.
    ShelvedBook& book(const std::string& hash, const std::string& title,
                      const std::string& author);

    // Returns the book with the hash of `book`.
    ShelvedBook& book(const Book& book, bool isHashDerived);

    // Returns the books in the order in which they were added, and removes them.
    std::vector<IncomingBook> take();

private:
    std::deque<ShelvedBook> books_;
    std::unordered_map<std::string, std::size_t> indices_;  // by hash
};

}  // namespace client
