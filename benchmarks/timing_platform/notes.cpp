// A note carries its identifiers only; everything else is looked up with them.
#include <charconv>
#include <string_view>

#include "readerlib/position_uri.h"
#include "timing_device.h"
#include "utilities/reader_db_manager.h"

using timing_platform::device;
using veloran::utilities::Note;

namespace {

const SampleNote& stored(const Note& note) {
    return device().notes[note.noteId % device().notes.size()];
}

Note fetched(unsigned long long place) {
    static const Note::Value uuid;  // stamped with the time once
    Note note;
    note.noteId = place;
    note.tags.emplace(Note::Tag::Uuid, uuid).first->second.str = stored(note).uuid;
    return note;
}

}  // namespace

void timing_platform::setNoteCount(std::size_t count) {
    device() = {};
    for (std::size_t place = 0; place < count; ++place) {
        device().positions.push_back(samplePosition(place));
    }
}

std::vector<Note> timing_platform::fetchedNotes() {
    std::vector<Note> notes;
    for (std::size_t place = 0; place < device().positions.size(); ++place) {
        notes.push_back(fetched(place));
    }
    return notes;
}

namespace veloran::utilities {

std::string Note::getJsonTagElement(Tag tag, const std::string& /*key*/) const {
    return tag == Tag::Anchor ? device().positions[noteId] : std::string();
}

std::string Note::getColor() const { return stored(*this).color; }
std::string Note::getText() const { return stored(*this).text; }
std::string Note::getImage() const { return stored(*this).picture; }
std::string Note::getNote() const { return stored(*this).comment; }

std::vector<std::pair<std::string, unsigned long long>>
ReaderDbManager::getBookNotesHashUUIDs(const std::string& /*bookHash*/, bool /*flag*/) {
    std::vector<std::pair<std::string, unsigned long long>> keys;
    keys.reserve(device().positions.size());
    for (std::size_t place = 0; place < device().positions.size(); ++place) {
        keys.emplace_back(std::to_string(place), place);
    }
    return keys;
}

Note ReaderDbManager::getNote(const std::string& noteKey) {
    unsigned long long place = 0;
    std::from_chars(noteKey.data(), noteKey.data() + noteKey.size(), place);
    return fetched(place);
}

}  // namespace veloran::utilities

bool Veloran::ReaderLib::extractPageFromnURI(const std::string& uri, double& page) {
    constexpr std::string_view kParameter = "&page=";
    const std::size_t at = uri.find(kParameter);
    if (at == std::string::npos) {
        return false;
    }
    unsigned whole = 0;
    const char* number = uri.data() + at + kParameter.size();
    const auto parsed = std::from_chars(number, uri.data() + uri.size(), whole);
    page = whole;
    return parsed.ec == std::errc();
}
