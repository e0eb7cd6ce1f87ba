#include "db/db_manager.h"

#include "script.h"

using scripted::found;
using scripted::recordCall;
using scripted::script;

namespace veloran::db {

DbManager* DbManager::Instance() {
    static DbManager instance;
    recordCall("DbManager::Instance");
    return &instance;
}

long long DbManager::GetBookIdByUid(int kind, const std::string& uid) {
    recordCall("DbManager::GetBookIdByUid", kind, uid);
    return kind == 1 ? found(script().libraryIds, uid, -2) : -2;
}

void DbManager::GetBookTitleAndAuthor(long long bookId, std::string* title,
                                      std::string* author) {
    recordCall("DbManager::GetBookTitleAndAuthor", bookId, *title, *author);
    *title = found(script().libraryBooks, bookId).title;
    *author = found(script().libraryBooks, bookId).author;
}

std::filesystem::path DbManager::GetBookLocalFilePath(long long bookId) {
    recordCall("DbManager::GetBookLocalFilePath", bookId);
    return found(script().libraryBooks, bookId).path;
}

bool DbManager::SetFileProp(const std::string& hash, FileProp prop,
                            const std::string& value) {
    recordCall("DbManager::SetFileProp", hash, static_cast<int>(prop), value);
    return !hash.empty();
}

}  // namespace veloran::db
