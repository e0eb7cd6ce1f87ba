// A note has only its identifiers; everything else is looked up with them.
#include <charconv>
#include <string_view>

#include "memory_device.h"
#include "readerlib/position_uri.h"
#include "utilities/reader_db_manager.h"

using memory::device;
using memory::StoredNote;
using veloran::utilities::Note;

namespace {

// An identifier holds the indexes of the book and of the note, both plus 1.
constexpr unsigned kBitsOfNote = 32;

unsigned long long idOf(unsigned long long book, unsigned long long note) {
    return (book + 1) << kBitsOfNote | (note + 1);
}

// Returns null if there is none.
const StoredNote* stored(unsigned long long id) {
    const auto book = static_cast<std::size_t>((id >> kBitsOfNote) - 1);
    const auto note = static_cast<std::size_t>((id & ((1ULL << kBitsOfNote) - 1)) - 1);
    if (book >= device().books.size() || note >= device().books[book].notes.size()) {
        return nullptr;
    }
    return &device().books[book].notes[note];
}

std::string textOf(const Note& note, std::string StoredNote::*field) {
    const StoredNote* found = stored(note.noteId);
    return found == nullptr ? std::string() : found->*field;
}

}  // namespace

namespace veloran::utilities {

std::string Note::getJsonTagElement(Tag tag, const std::string& key) const {
    return tag == Tag::Anchor && key == "anchor" ? textOf(*this, &StoredNote::position)
                                                 : std::string();
}

std::string Note::getColor() const { return textOf(*this, &StoredNote::color); }
std::string Note::getText() const { return textOf(*this, &StoredNote::text); }
std::string Note::getImage() const { return textOf(*this, &StoredNote::picture); }
std::string Note::getNote() const { return textOf(*this, &StoredNote::comment); }

// NOLINTBEGIN(readability-convert-member-functions-to-static): declared so in the seam.
std::vector<std::pair<std::string, unsigned long long>>
ReaderDbManager::getBookNotesHashUUIDs(const std::string& bookHash, bool /*flag*/) {
    std::vector<std::pair<std::string, unsigned long long>> keys;
    const memory::StoredBook* book = memory::findBook(bookHash);
    if (book == nullptr) {
        return keys;
    }
    keys.reserve(book->notes.size());
    const auto bookIndex = static_cast<unsigned long long>(book - device().books.data());
    for (std::size_t note = 0; note < book->notes.size(); ++note) {
        const unsigned long long id = idOf(bookIndex, note);
        keys.emplace_back(std::to_string(id), id);
    }
    return keys;
}

Note ReaderDbManager::getNote(const std::string& noteKey) {
    static const Note::Value uuid;  // stamped with the time once
    unsigned long long id = 0;
    const char* const end = noteKey.data() + noteKey.size();
    const auto parsed = std::from_chars(noteKey.data(), end, id);
    const StoredNote* found =
        parsed.ec == std::errc() && parsed.ptr == end ? stored(id) : nullptr;
    Note note;
    if (found != nullptr) {
        note.noteId = id;
        note.tags.emplace(Note::Tag::Uuid, uuid).first->second.str = found->uuid;
    }
    return note;
}
// NOLINTEND(readability-convert-member-functions-to-static)

}  // namespace veloran::utilities

// Accepts "…?page=12.5" and "…&page=12.5&…".
bool Veloran::ReaderLib::extractPageFromnURI(const std::string& uri, double& page) {
    constexpr std::string_view kParameter = "page=";
    const std::size_t at = uri.find(kParameter);
    if (at == std::string::npos || at == 0 || (uri[at - 1] != '?' && uri[at - 1] != '&')) {
        return false;
    }
    const char* const end = uri.data() + uri.size();
    unsigned whole = 0;
    auto [next, error] = std::from_chars(uri.data() + at + kParameter.size(), end, whole);
    double fraction = 0;
    double scale = 1;
    if (error == std::errc() && next != end && *next == '.') {
        for (++next; next != end && *next >= '0' && *next <= '9'; ++next) {
            fraction = fraction * 10 + (*next - '0');
            scale *= 10;
        }
    }
    page = whole + fraction / scale;
    return error == std::errc();
}
