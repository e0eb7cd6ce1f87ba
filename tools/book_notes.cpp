#include "book_notes.h"

#include "complaint.h"
#include "utilities/reader_db_manager.h"

void complainAboutUnknownBook(const std::string& hash) {
    throw Complaint("No book has the hash " + hash +
                    ". \"notes-export books\" lists them.");
}

namespace {

void check(veloran::utilities::ReaderDbManager& readerDb, const std::string& hash) {
    if (readerDb.getItemId(hash) == -1) {
        complainAboutUnknownBook(hash);
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
