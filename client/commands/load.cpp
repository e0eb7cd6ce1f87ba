#include <algorithm>
#include <utility>

#include "client/collection/collection_folder.h"
#include "client/commands/batch.h"
#include "client/commands/commands.h"
#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/source.h"
#include "client/text/first_few.h"
#include "client/text/one_line.h"
#include "store/database_paths.h"
#include "store/library_store.h"
#include "store/reader_store.h"
#include "utilities/serialization_utils.h"

namespace {

std::vector<host::LibraryBook> libraryBooksOf(const SourceContent& content) {
    using veloran::utilities::SerializationUtils;
    std::vector<host::LibraryBook> books;
    for (const auto& [record, author] : content.books) {
        books.push_back({SerializationUtils::FromHex(record.fastHash), record.title, author,
                         record.path});
    }
    return books;
}

std::vector<host::BookRecord> takeRecords(SourceContent& content) {
    std::vector<host::BookRecord> records;
    for (SourceBook& book : content.books) {
        records.push_back(std::move(book.record));
    }
    return records;
}

void writeRest(const SourceContent& content, const std::vector<host::LibraryBook>& books,
               host::LibraryStore& library) {
    try {
        library.putBooks(books, content.knownBooks);
        if (content.styleSheet) {
            writeFile(host::kNoteStyleSheetPath, *content.styleSheet);
        }
    } catch (const std::runtime_error& error) {
        throw Complaint(
            std::string("The notes are on the device, but not all of the rest: ") +
            error.what() + "\nLoad the file again once that is repaired.");
    }
}

// Nothing is written before all of the file is known to be right, and both databases to be
// databases.
host::LoadResult put(SourceContent& content) {
    prepareDevice();
    host::ReaderStore reader(host::kReaderDatabasePath);
    host::LibraryStore library(host::kLibraryDatabasePath);
    const std::vector<host::LibraryBook> books = libraryBooksOf(content);
    host::LoadResult result = reader.load(takeRecords(content), content.knownBooks);
    writeRest(content, books, library);
    return result;
}

std::string keptNotes(const std::vector<host::KeptNote>& notes) {
    if (notes.empty()) {
        return {};
    }
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < std::min(notes.size(), kMostNamed); ++i) {
        lines.push_back(oneLine(notes[i].uuid) + " of " + oneLine(notes[i].fastHash) +
                        "  \"" + oneLine(notes[i].title) + "\"");
    }
    return "The device keeps its own of these notes, as the file's differ but are not "
           "newer:\n" +
           firstFew(lines, notes.size());
}

Outcome load(const std::string& file, std::size_t files) {
    SourceContent content = readSource(file);
    const host::LoadResult notes = put(content);
    return {resultOf(file, files, notes.changed),
            content.skipped.summary(file) + keptNotes(notes.kept)};
}

}  // namespace

void loadAll(const std::vector<std::string>& files) {
    doEach("Loading", files,
           [&](const std::string& file) { return load(file, files.size()); });
}
