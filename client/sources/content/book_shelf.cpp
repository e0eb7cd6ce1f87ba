#include "client/sources/content/book_shelf.h"

#include <utility>

#include "client/files/digest.h"

namespace client {
namespace {

// Returns hexadecimal digits that depend only on the parts.
std::string derivedId(const std::vector<std::string_view>& parts) {
    Digest digest;
    for (const std::string_view part : parts) {
        digest.add(std::string_view("\0", 1));
        digest.add(part);
    }
    return digest.hexadecimal();
}

std::string derivedUuid(const std::string& bookHash, const Identity& identity) {
    std::vector<std::string_view> parts = {bookHash};
    parts.insert(parts.end(), identity.begin(), identity.end());
    return derivedId(parts);
}

}  // namespace

void ShelvedBook::add(Note note, const Identity& identity) {
    if (note.uuid.empty()) {
        note.uuid = derivedUuid(content_.book.hash, identity);
    }
    const std::string content =
        derivedId({note.text, note.comment, note.color, note.picture});
    const auto taken = contents_.find(note.uuid);
    if (taken != contents_.end() && taken->second != content) {
        note.uuid = derivedId({note.uuid, content});
    }
    if (contents_.emplace(note.uuid, content).second) {
        content_.notes.push_back(std::move(note));
    }
}

ShelvedBook& BookShelf::book(const std::string& title, const std::string& author) {
    return book(derivedId({title, author}), title, author);
}

ShelvedBook& BookShelf::book(const std::string& hash, const std::string& title,
                             const std::string& author) {
    const auto [entry, isNew] = indices_.try_emplace(hash, books_.size());
    if (isNew) {
        books_.emplace_back(Book{hash, title, author, ""});
    }
    return books_[entry->second];
}

std::vector<IncomingBook> BookShelf::take() {
    std::vector<IncomingBook> content;
    content.reserve(books_.size());
    for (ShelvedBook& shelved : books_) {
        content.push_back(shelved.take());
    }
    return content;
}

}  // namespace client
