#include "db/db_manager.h"

#include <unistd.h>

#include <memory>
#include <stdexcept>

#include "store/database_paths.h"
#include "store/library_store.h"

namespace veloran::db {
namespace {

constexpr int kFastHashUid = 1;

// Returns the connection of this thread. Reopens it if the file was replaced or the working
// directory has changed.
host::LibraryStore& library() {
    struct Open {
        host::LibraryStore store{host::kLibraryDatabasePath};
        pid_t process = getpid();
    };
    thread_local std::unique_ptr<Open> open;
    if (open != nullptr && open->process != getpid()) {
        static_cast<void>(open.release());  // SQLite forbids its use after a fork
    }
    if (open != nullptr && open->store.isAt(host::kLibraryDatabasePath)) {
        return open->store;
    }
    open.reset();
    // NOLINTBEGIN(clang-analyzer-cplusplus.NewDelete): false, it is null now.
    open = std::make_unique<Open>();
    return open->store;
    // NOLINTEND(clang-analyzer-cplusplus.NewDelete)
}

}  // namespace

DbManager* DbManager::Instance() {
    static DbManager instance;
    return &instance;
}

// NOLINTBEGIN(readability-convert-member-functions-to-static): declared so in the seam.
long long DbManager::GetBookIdByUid(int kind, const std::string& uid) {
    return kind == kFastHashUid ? library().findBook(uid).value_or(-1) : -1;
}

void DbManager::GetBookTitleAndAuthor(long long bookId, std::string* title,
                                      std::string* author) {
    if (const auto book = library().book(bookId)) {
        *title = book->title;
        *author = book->author;
    }
}

std::filesystem::path DbManager::GetBookLocalFilePath(long long bookId) {
    const auto book = library().book(bookId);
    return book ? book->path : std::string();
}

bool DbManager::SetFileProp(const std::string& hash, FileProp prop,
                            const std::string& value) {
    if (hash.empty()) {
        return false;
    }
    try {
        library().setFileProp(hash, static_cast<int>(prop), value);
    } catch (const std::runtime_error&) {  // reported by the result
        return false;
    }
    return true;
}
// NOLINTEND(readability-convert-member-functions-to-static)

}  // namespace veloran::db
