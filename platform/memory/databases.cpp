#include <algorithm>
#include <mutex>

#include "db/db_manager.h"
#include "memory_device.h"
#include "readerlib/database.h"
#include "readerlib/import_export_db.h"
#include "utilities/reader_db_manager.h"
#include "utilities/serialization_utils.h"

namespace memory {

Device deviceOfOneNote() {
    return {{{"626f6f6b",
              "Book",
              "Author",
              "/books/Book.epub",
              {{"note", "yellow", "A passage.", "A comment.", "", "book?page=1"}}}}};
}

const StoredBook* findBook(const std::string& hash) {
    const auto& books = device().books;
    const auto found =
        std::find_if(books.begin(), books.end(),
                     [&](const StoredBook& book) { return book.hash == hash; });
    return found == books.end() ? nullptr : &*found;
}

namespace {

// Returns the index of the book in the device, plus 1; -1 for null.
long long idOf(const StoredBook* book) {
    return book == nullptr ? -1 : book - device().books.data() + 1;
}

const StoredBook* bookWith(long long id) {
    const auto& books = device().books;
    const bool isThere = id >= 1 && static_cast<unsigned long long>(id) <= books.size();
    return isThere ? &books[static_cast<std::size_t>(id - 1)] : nullptr;
}

}  // namespace
}  // namespace memory

using memory::bookWith;
using memory::findBook;
using memory::idOf;

struct SqliteCpp::DB::State {};

SqliteCpp::DB::DB() = default;
SqliteCpp::DB::~DB() = default;

// NOLINTBEGIN(readability-convert-member-functions-to-static): declared so in the seam.
namespace Veloran::ReaderLib {

bool DataBase::open(std::string& /*path*/) { return true; }

ImportExportDBV2::ImportExportDBV2(DataBase* database, unsigned long long limit, int mode)
    : database_(database), limit_(limit), mode_(mode) {
    static_cast<void>(database_);
}

void ImportExportDBV2::set_export_bookmark_ids(const std::set<unsigned long long>& ids) {
    exportBookmarkIds_ = ids;
}

// Returns the payload of the device, because this platform has no dump format.
bool ImportExportDBV2::books_export(std::string& out,
                                    const std::set<unsigned long long>& /*books*/) {
    out += memory::device().payload;
    return !memory::device().payload.empty();
}

int ImportExportDBV2::books_import(const std::string& /*path*/) { return -1; }

}  // namespace Veloran::ReaderLib

namespace veloran::utilities {

void Sqlite::close() { handle_ = nullptr; }

ReaderDbManager::ReaderDbManager() = default;

long long ReaderDbManager::getItemId(const std::string& bookHash) {
    return idOf(findBook(bookHash));
}

std::vector<Book> ReaderDbManager::getBookByFastHash(const std::string& bookHash) {
    const memory::StoredBook* found = findBook(bookHash);
    if (found == nullptr) {
        return {};
    }
    Book book;
    book.title = found->title;
    book.path = found->path;
    return {book};
}

std::string ReaderDbManager::getBookFastHashById(long long itemId) {
    const memory::StoredBook* book = bookWith(itemId);
    return book == nullptr ? "" : book->hash;
}

}  // namespace veloran::utilities

namespace veloran::db {

DbManager* DbManager::Instance() {
    static DbManager instance;
    return &instance;
}

long long DbManager::GetBookIdByUid(int kind, const std::string& uid) {
    constexpr int kFastHash = 1;
    for (const memory::StoredBook& book : memory::device().books) {
        if (kind == kFastHash && utilities::SerializationUtils::FromHex(book.hash) == uid) {
            return idOf(&book);
        }
    }
    return -1;
}

void DbManager::GetBookTitleAndAuthor(long long bookId, std::string* title,
                                      std::string* author) {
    if (const memory::StoredBook* book = bookWith(bookId)) {
        *title = book->title;
        *author = book->author;
    }
}

std::filesystem::path DbManager::GetBookLocalFilePath(long long bookId) {
    const memory::StoredBook* book = bookWith(bookId);
    return book == nullptr ? "" : book->path;
}

bool DbManager::SetFileProp(const std::string& hash, FileProp prop,
                            const std::string& value) {
    static std::mutex mutex;  // every exporter of the process uses this instance
    const std::lock_guard<std::mutex> lock(mutex);
    if (hash.empty()) {
        return false;
    }
    memory::device().fileProps[hash][static_cast<int>(prop)] = value;
    return true;
}

}  // namespace veloran::db
// NOLINTEND(readability-convert-member-functions-to-static)
