#include "client/sources/content/book_shelf.h"

#include <xxhash.h>

#include <utility>

std::string derivedName(const std::vector<std::string_view>& parts) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string bytes;
    for (const std::string_view part : parts) {
        bytes.append(&part == parts.data() ? 0 : 1, '\0').append(part);
    }
    XXH128_canonical_t hash;
    XXH128_canonicalFromHash(&hash, XXH3_128bits(bytes.data(), bytes.size()));
    std::string name;
    for (const unsigned byte : hash.digest) {
        name += kDigits[byte >> 4U];
        name += kDigits[byte & 15U];
    }
    return name;
}

std::size_t BookShelf::bookOf(const std::string& title, const std::string& author) {
    return bookNamed(derivedName({title, author}), title, author);
}

std::size_t BookShelf::bookNamed(const std::string& hash, const std::string& title,
                                 const std::string& author) {
    const auto [entry, isNew] = places_.try_emplace(hash, books_.size());
    if (isNew) {
        books_.push_back({{hash, title, "", {}}, author});
        notes_.emplace_back();
    }
    return entry->second;
}

const std::string& BookShelf::hashOf(std::size_t place) const {
    return books_[place].record.fastHash;
}

void BookShelf::add(std::size_t place, SourceNote note) {
    auto& notes = notes_[place];
    const std::string content =
        derivedName({note.text, note.comment, note.color, note.image});
    const auto taken = notes.find(note.uuid);
    if (taken != notes.end() && taken->second != content) {
        note.uuid = derivedName({note.uuid, content});
    }
    if (notes.emplace(note.uuid, content).second) {
        books_[place].record.notes.push_back(noteRecord(std::move(note)));
    }
}

std::vector<SourceBook> BookShelf::take() {
    notes_.clear();
    places_.clear();
    return std::exchange(books_, {});
}
