#include <sstream>

#include "contract_device.h"
#include "store/database_paths.h"
#include "store/library_store.h"
#include "store/note_tags.h"
#include "store/reader_store.h"
#include "utilities/serialization_utils.h"

// Nothing to do: databases are created when they are opened.
void startEmptyDevice() {}

void putOnDevice(const ContractBook& book) {
    host::BookRecord record{book.hash, book.title, book.path, {}};
    for (const ContractNote& note : book.notes) {
        const std::string anchor = R"({"anchor":")" + note.anchor + R"("})";
        record.notes.push_back({note.uuid,
                                {{host::kAnchorTag, "", anchor, 1},
                                 {host::kColorTag, note.color, {}, 1},
                                 {host::kTextTag, note.text, {}, 1},
                                 {host::kCommentTag, note.comment, {}, 1},
                                 {host::kImageTag, note.image, {}, 1}}});
    }
    host::ReaderStore(host::kReaderDatabasePath).merge({record});
    host::LibraryStore(host::kLibraryDatabasePath)
        .putBook({veloran::utilities::SerializationUtils::FromHex(book.hash), book.title,
                  book.author, book.path});
}

std::string uriOfPage(double page) {
    std::ostringstream uri;
    uri << "book?page=" << page;
    return uri.str();
}

std::string readerDatabasePath() { return host::kReaderDatabasePath; }

std::optional<std::string> filePropOnDevice(const std::string& hash, int prop) {
    return host::LibraryStore(host::kLibraryDatabasePath).fileProp(hash, prop);
}
