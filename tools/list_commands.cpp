#include <algorithm>
#include <iostream>

#include "book_notes.h"
#include "commands.h"
#include "decimal.h"
#include "device_paths.h"
#include "library_store.h"
#include "reader_store.h"
#include "readerlib/position_uri.h"
#include "utilities/serialization_utils.h"

namespace {

using veloran::utilities::Note;

bool isControl(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code < 0x20 || code == 0x7F;
}

// The text as one field of one line.
std::string field(std::string text) {
    std::replace_if(text.begin(), text.end(), isControl, ' ');
    return text;
}

std::string page(const Note& note) {
    double number = 0;
    if (!Veloran::ReaderLib::extractPageFromnURI(note.getAnchorUri(), number)) {
        return {};
    }
    return decimal(number);
}

std::string author(host::LibraryStore& library, const std::string& hash) {
    const auto id = library.findBook(veloran::utilities::SerializationUtils::FromHex(hash));
    return id ? library.book(*id).value_or(host::LibraryBook{}).author : std::string();
}

}  // namespace

void listBooks() {
    host::LibraryStore library(host::kLibraryDatabasePath);
    for (const host::BookEntry& book :
         host::ReaderStore(host::kReaderDatabasePath).books()) {
        std::cout << field(book.fastHash) << '\t' << field(book.title) << '\t'
                  << field(author(library, book.fastHash)) << '\n';
    }
}

void listNotes(const std::string& hash) {
    for (const Note& note : notesOf(hash)) {
        std::cout << note.noteId << '\t' << page(note) << '\t' << field(note.getColor())
                  << '\t' << field(note.getText()) << '\n';
    }
}
