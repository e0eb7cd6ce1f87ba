#include "client/collection/incoming_books.h"

#include <utility>

#include "client/collection/collection_folder.h"
#include "client/collection/note_tags.h"
#include "client/error.h"
#include "client/files/whole_file.h"
#include "store/database_paths.h"
#include "store/library_store.h"
#include "utilities/serialization_utils.h"

namespace client {
namespace {

std::vector<host::LibraryBook> libraryBooks(const std::vector<IncomingBook>& books) {
    using veloran::utilities::SerializationUtils;
    std::vector<host::LibraryBook> result;
    result.reserve(books.size());
    for (const auto& [book, notes, records] : books) {
        result.push_back(
            {SerializationUtils::FromHex(book.hash), book.title, book.author, book.path});
    }
    return result;
}

host::BookRecord takeRecord(IncomingBook& incoming) {
    const Book& book = incoming.book;
    host::BookRecord record{book.hash, book.title, book.path, std::move(incoming.records)};
    record.notes.reserve(record.notes.size() + incoming.notes.size());
    for (Note& note : incoming.notes) {
        record.notes.push_back(toRecord(std::move(note)));
    }
    incoming.notes = {};
    return record;
}

}  // namespace

std::vector<host::BookRecord> takeRecords(std::vector<IncomingBook>& books) {
    std::vector<host::BookRecord> records;
    records.reserve(books.size());
    for (IncomingBook& book : books) {
        records.push_back(takeRecord(book));
    }
    return records;
}

// Opens both databases before writing, so that nothing is written if one cannot be opened.
host::LoadResult addToCollection(std::vector<IncomingBook>& books,
                                 host::OnKnownBook onKnownBook,
                                 const std::optional<std::string>& styleSheet) {
    prepareCollection();
    host::ReaderStore reader(host::kReaderDatabasePath);
    host::LibraryStore library(host::kLibraryDatabasePath);
    host::LoadResult result = reader.load(takeRecords(books), onKnownBook);
    try {
        library.putBooks(libraryBooks(books), onKnownBook);
        if (styleSheet) {
            writeFile(host::kNoteStyleSheetPath, *styleSheet);
        }
    } catch (const std::runtime_error& error) {
        throw UserError(
            std::string("The notes are in the collection, but not all of the rest: ") +
            error.what() + "\nLoad the file again once that is repaired.");
    }
    return result;
}

}  // namespace client
