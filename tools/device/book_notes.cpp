#include "device/book_notes.h"

#include "device/iso_time.h"
#include "device/unknown_book.h"
#include "readerlib/position_uri.h"
#include "store/book_hash.h"
#include "terminal/complaint.h"
#include "terminal/one_line.h"
#include "utilities/reader_db_manager.h"

namespace {

void check(veloran::utilities::ReaderDbManager& readerDb, const std::string& hash) {
    if (readerDb.getItemId(hash) == -1) {
        complainAboutUnknownBook(hash);
    }
    // One that came from elsewhere could be a path or an option.
    if (!host::isBookHash(hash)) {
        throw Complaint("The book with the hash " + oneLine(hash) +
                        " can only be listed: a hash is pairs of hexadecimal digits, in "
                        "lower case.");
    }
}

}  // namespace

void complainUnlessKnown(const std::string& hash) {
    veloran::utilities::ReaderDbManager readerDb;
    check(readerDb, hash);
}

std::vector<veloran::utilities::Note> notesOf(const std::string& hash) {
    veloran::utilities::ReaderDbManager readerDb;
    check(readerDb, hash);
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
