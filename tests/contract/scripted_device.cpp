#include "contract_device.h"
#include "script.h"
#include "utilities/serialization_utils.h"

using scripted::script;

void startEmptyDevice() { script() = {}; }

void putOnDevice(const ContractBook& book) {
    const auto id = static_cast<long long>(script().itemIds.size()) + 1;
    const std::string uid = veloran::utilities::SerializationUtils::FromHex(book.hash);
    script().bookIdsByUid[uid] = id;
    script().booksOfLibrary[id] = {book.title, book.author, book.path};
    script().itemIds[book.hash] = id;
    script().fastHashes[id] = book.hash;
    veloran::utilities::Book& entry = script().readerBooks[book.hash].emplace_back();
    entry.title = book.title;
    entry.path = book.path;
    for (const ContractNote& note : book.notes) {
        scripted::addNote(book.hash, {script().notes.size() + 1, note.uuid, note.color,
                                      note.text, note.image, note.comment, note.anchor});
    }
}

std::string readerDatabasePath() { return "books.db"; }

std::string uriOfPage(double page) {
    const std::string uri = "at " + std::to_string(page);
    script().pages[uri] = page;
    return uri;
}
