#include "client/collection/book_notes.h"

#include "client/text/iso_time.h"
#include "readerlib/position_uri.h"
#include "utilities/reader_db_manager.h"

std::vector<veloran::utilities::Note> notesOf(const std::string& hash) {
    veloran::utilities::ReaderDbManager readerDb;
    std::vector<veloran::utilities::Note> notes;
    for (const auto& key : readerDb.getBookNotesHashUUIDs(hash, true)) {
        notes.push_back(readerDb.getNote(key.first));
    }
    return notes;
}

std::optional<double> pageOf(const veloran::utilities::Note& note) {
    double page = 0;
    return Veloran::ReaderLib::extractPageFromnURI(note.getAnchorUri(), page)
               ? std::optional(page)
               : std::nullopt;
}

std::string timeOf(const veloran::utilities::Note& note) {
    const std::int64_t seconds = note[veloran::utilities::Note::Tag::Uuid].timestamp;
    return seconds == 0 ? std::string() : isoTime(seconds);
}
