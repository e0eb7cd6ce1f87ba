#include "memory_book.h"

#include "sample_notes.h"
#include "utilities/reader_db_manager.h"

void setNoteCount(std::size_t count) {
    memory::StoredBook book{kBook, "Book", "Author", "/books/Book.epub", {}};
    for (std::size_t index = 0; index < count; ++index) {
        const SampleNote& note = sampleNotes()[index % sampleNotes().size()];
        book.notes.push_back(
            {note.uuid, note.color, note.text, note.comment, "", samplePosition(index)});
    }
    memory::device() = {{std::move(book)}};
}

memory::StoredNote& onlyNote() {
    setNoteCount(1);
    return memory::device().books.front().notes.front();
}

RecordedNotes fetchedNotes() {
    veloran::utilities::ReaderDbManager manager;
    RecordedNotes notes;
    for (const auto& key : manager.getBookNotesHashUUIDs(kBook, true)) {
        notes.push_back(manager.getNote(key.first));
    }
    return notes;
}
