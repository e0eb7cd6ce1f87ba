#include "db/db_manager.h"
#include "readerlib/database.h"
#include "readerlib/import_export_db.h"
#include "timing_device.h"
#include "utilities/reader_db_manager.h"

using timing_platform::device;

namespace {

constexpr long long kBook = 1;

}  // namespace

struct SqliteCpp::DB::State {};

SqliteCpp::DB::DB() = default;
SqliteCpp::DB::~DB() = default;

namespace Veloran::ReaderLib {

bool DataBase::open(std::string& /*path*/) { return true; }

ImportExportDBV2::ImportExportDBV2(DataBase* database, unsigned long long limit, int mode)
    : database_(database), limit_(limit), mode_(mode) {
    static_cast<void>(database_);
    static_cast<void>(limit_);
    static_cast<void>(mode_);
}

void ImportExportDBV2::set_export_bookmark_ids(const std::set<unsigned long long>& ids) {
    exportBookmarkIds_ = ids;
}

bool ImportExportDBV2::books_export(std::string& out,
                                    const std::set<unsigned long long>& /*books*/) {
    out += device().payload;
    return true;
}

int ImportExportDBV2::books_import(const std::string& /*path*/) { return 0; }

}  // namespace Veloran::ReaderLib

namespace veloran::utilities {

void Sqlite::close() { handle_ = nullptr; }

ReaderDbManager::ReaderDbManager() = default;

long long ReaderDbManager::getItemId(const std::string& /*bookHash*/) { return kBook; }

std::vector<Book> ReaderDbManager::getBookByFastHash(const std::string& /*bookHash*/) {
    return {};
}

std::string ReaderDbManager::getBookFastHashById(long long /*itemId*/) {
    return "626f6f6b";
}

}  // namespace veloran::utilities

namespace veloran::db {

DbManager* DbManager::Instance() {
    static DbManager instance;
    return &instance;
}

// NOLINTBEGIN(readability-convert-member-functions-to-static): the seam has them so.
long long DbManager::GetBookIdByUid(int /*kind*/, const std::string& /*uid*/) {
    return kBook;
}

void DbManager::GetBookTitleAndAuthor(long long /*bookId*/, std::string* title,
                                      std::string* author) {
    *title = "Book";
    *author = "Author";
}

std::filesystem::path DbManager::GetBookLocalFilePath(long long /*bookId*/) { return {}; }

bool DbManager::SetFileProp(const std::string& /*hash*/, FileProp /*prop*/,
                            const std::string& /*value*/) {
    return true;
}
// NOLINTEND(readability-convert-member-functions-to-static)

}  // namespace veloran::db
