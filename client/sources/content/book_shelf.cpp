#include "client/sources/content/book_shelf.h"

#include <string_view>
#include <utility>

namespace client {
namespace {

// Returns a digest that depends only on the parts.
DigestValue digestOf(const std::vector<std::string_view>& parts) {
    std::string text;
    for (const std::string_view part : parts) {
        text.append(1, '\0').append(part);
    }
    return DigestValue::of(text);
}

}  // namespace

std::string ShelvedBook::derivedUuid(const Identity& identity) const {
    std::vector<std::string_view> parts = {content_.book.hash};
    parts.insert(parts.end(), identity.begin(), identity.end());
    return digestOf(parts).hexadecimal();
}

bool ShelvedBook::identify(Note& note, const Identity& identity,
                           const std::vector<Identity>& former) {
    if (note.uuid.empty()) {
        note.uuid = derivedUuid(identity);
    }
    const DigestValue digest =
        digestOf({note.text, note.comment, note.color, note.picture});
    const auto [first, isFirst] = contents_.emplace(digestOf({note.uuid}), digest);
    if (!isFirst && first->second == digest) {
        return false;
    }
    if (!isFirst) {
        note.uuid = digestOf({note.uuid, digest.hexadecimal()}).hexadecimal();
    }
    const bool isNew = isFirst || contents_.emplace(digestOf({note.uuid}), digest).second;
    if (isNew) {
        for (const Identity& other : former) {
            content_.formerUuids[note.uuid].push_back(derivedUuid(other));
        }
    }
    return isNew;
}

void ShelvedBook::add(Note note, const Identity& identity) {
    if (identify(note, identity)) {
        content_.notes.add(std::move(note));
    }
}

std::string derivedBookHash(const std::string& title, const std::string& author) {
    return digestOf({title, author}).hexadecimal();
}

ShelvedBook& BookShelf::book(const std::string& title, const std::string& author) {
    return book({derivedBookHash(title, author), title, author, ""}, true);
}

ShelvedBook& BookShelf::book(const std::string& hash, const std::string& title,
                             const std::string& author) {
    return book({hash, title, author, ""}, false);
}

ShelvedBook& BookShelf::book(const Book& book, bool isHashDerived) {
    const auto [entry, isNew] = indices_.try_emplace(book.hash, books_.size());
    if (isNew) {
        books_.emplace_back(IncomingBook{book, isHashDerived});
    }
    return books_[entry->second];
}

std::vector<IncomingBook> BookShelf::take() {
    std::vector<IncomingBook> content;
    content.reserve(books_.size());
    while (!books_.empty()) {
        content.push_back(std::move(books_.front().finish()));
        books_.pop_front();
    }
    indices_.clear();
    return content;
}

}  // namespace client
