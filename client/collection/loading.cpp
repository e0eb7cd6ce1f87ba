#include "client/collection/loading.h"

#include "client/collection/collection_folder.h"
#include "client/collection/known_books.h"
#include "client/collection/note_loader.h"
#include "client/error.h"
#include "client/files/whole_file.h"
#include "store/database_paths.h"
#include "utilities/serialization_utils.h"

namespace client {
namespace {

std::vector<host::LibraryBook> libraryBooks(const std::vector<IncomingBook>& books) {
    using veloran::utilities::SerializationUtils;
    std::vector<host::LibraryBook> result;
    result.reserve(books.size());
    for (const IncomingBook& incoming : books) {
        const Book& book = incoming.book;
        result.push_back(
            {SerializationUtils::FromHex(book.hash), book.title, book.author, book.path});
    }
    return result;
}

void loadNotes(std::vector<IncomingBook>& books, host::OnKnownBook onKnownBook,
               host::ReaderStore& reader, LoadResult& result) {
    for (IncomingBook& incoming : books) {
        const Book& book = incoming.book;
        const std::int64_t id =
            reader.putBook({book.hash, book.title, book.path, {}}, onKnownBook);
        NoteLoader(reader, id, book, result).load(incoming);
    }
}

}  // namespace

// Writes the library before the notes. Many notes may lock out the readers of their
// database, and such a reader may hold the lock of the library, for which this would wait.
LoadResult loadBooks(std::vector<IncomingBook>& books, host::OnKnownBook onKnownBook,
                     host::ReaderStore& reader, host::LibraryStore& library) {
    LoadResult result;
    reader.inWriteTransaction([&] {
        useKnownHashes(books, reader, library);
        library.putBooks(libraryBooks(books), onKnownBook);
        loadNotes(books, onKnownBook, reader, result);
    });
    return result;
}

LoadResult addToCollection(std::vector<IncomingBook>& books, host::OnKnownBook onKnownBook,
                           const std::optional<std::string>& styleSheet) {
    prepareCollection();
    host::ReaderStore reader(host::kReaderDatabasePath);
    host::LibraryStore library(host::kLibraryDatabasePath);
    LoadResult result = loadBooks(books, onKnownBook, reader, library);
    try {
        if (styleSheet) {
            writeFile(host::kNoteStyleSheetPath, *styleSheet);
        }
    } catch (const std::runtime_error& error) {
        throw UserError(
            std::string("The notes are in the collection, but the style sheet is not: ") +
            error.what() + "\nLoad the file again once that is repaired.");
    }
    return result;
}

}  // namespace client
