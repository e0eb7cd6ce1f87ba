#include <algorithm>
#include <iostream>

#include "book_notes.h"
#include "commands.h"
#include "db/db_manager.h"
#include "decimal.h"
#include "device_paths.h"
#include "reader_store.h"
#include "readerlib/position_uri.h"
#include "utilities/reader_db_manager.h"
#include "utilities/serialization_utils.h"

namespace {

using veloran::db::DbManager;
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

std::string author(const std::string& hash) {
    const std::string uid = veloran::utilities::SerializationUtils::FromHex(hash);
    const long long id = DbManager::Instance()->GetBookIdByUid(1, uid);
    std::string title;
    std::string result;
    if (id >= 0) {
        DbManager::Instance()->GetBookTitleAndAuthor(id, &title, &result);
    }
    return result;
}

}  // namespace

void listBooks() {
    for (const host::BookEntry& book :
         host::ReaderStore(host::kReaderDatabasePath).books()) {
        std::cout << field(book.fastHash) << '\t' << field(book.title) << '\t'
                  << field(author(book.fastHash)) << '\n';
    }
}

void listNotes(const std::string& hash) {
    for (const Note& note : notesOf(hash)) {
        std::cout << note.noteId << '\t' << page(note) << '\t' << field(note.getColor())
                  << '\t' << field(note.getText()) << '\n';
    }
}
