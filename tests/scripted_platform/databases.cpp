#include <memory>

#include "db/db_manager.h"
#include "script.h"
#include "utilities/reader_db_manager.h"

using scripted::found;
using scripted::recordCall;
using scripted::recordRelease;
using scripted::script;

namespace veloran::db {

DbManager* DbManager::Instance() {
    static DbManager instance;
    recordCall("DbManager::Instance");
    return &instance;
}

long long DbManager::GetBookIdByUid(int kind, const std::string& uid) {
    recordCall("DbManager::GetBookIdByUid", kind, uid);
    return kind == 1 ? found(script().bookIdsByUid, uid, -2) : -2;
}

void DbManager::GetBookTitleAndAuthor(long long bookId, std::string* title,
                                      std::string* author) {
    recordCall("DbManager::GetBookTitleAndAuthor", bookId, *title, *author);
    *title = found(script().booksOfLibrary, bookId).title;
    *author = found(script().booksOfLibrary, bookId).author;
}

std::filesystem::path DbManager::GetBookLocalFilePath(long long bookId) {
    recordCall("DbManager::GetBookLocalFilePath", bookId);
    return found(script().booksOfLibrary, bookId).path;
}

bool DbManager::SetFileProp(const std::string& hash, FileProp prop,
                            const std::string& value) {
    recordCall("DbManager::SetFileProp", hash, static_cast<int>(prop), value);
    return !hash.empty();
}

}  // namespace veloran::db

namespace veloran::utilities {

struct Sqlite::Connection {};

void Sqlite::close() {
    recordRelease("Sqlite::close()");
    delete handle_;
    handle_ = nullptr;
    script().openHandles--;
}

ReaderDbManager::ReaderDbManager() {
    recordCall("ReaderDbManager::ReaderDbManager");
    const std::shared_ptr<void> stored(
        nullptr, [](void*) { recordRelease("ReaderDbManager::onError_ destroyed"); });
    onError_ = [stored](const std::string&) {};
    connection_.setHandle(new Sqlite::Connection);
    script().openHandles++;
}

long long ReaderDbManager::getItemId(const std::string& bookHash) {
    recordCall("ReaderDbManager::getItemId", bookHash);
    return found(script().itemIds, bookHash, -1);
}

std::vector<Book> ReaderDbManager::getBookByFastHash(const std::string& bookHash) {
    recordCall("ReaderDbManager::getBookByFastHash", bookHash);
    return found(script().readerBooks, bookHash);
}

std::string ReaderDbManager::getBookFastHashById(long long itemId) {
    recordCall("ReaderDbManager::getBookFastHashById", itemId);
    return found(script().fastHashes, itemId);
}

std::vector<std::pair<std::string, unsigned long long>>
ReaderDbManager::getBookNotesHashUUIDs(const std::string& bookHash, bool flag) {
    recordCall("ReaderDbManager::getBookNotesHashUUIDs", bookHash, flag);
    std::vector<std::pair<std::string, unsigned long long>> keys;
    for (const std::string& key : found(script().noteKeys, bookHash)) {
        keys.emplace_back(key, 0xdeadbeef);
    }
    return keys;
}

Note ReaderDbManager::getNote(const std::string& noteKey) {
    recordCall("ReaderDbManager::getNote", noteKey);
    return found(script().notes, noteKey);
}

}  // namespace veloran::utilities
