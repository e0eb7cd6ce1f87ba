#include "db/db_manager.h"
#include "export/notes_exporter_impl.h"
#include "system/filesystem.h"
#include "utilities/serialization_utils.h"

namespace veloran {

namespace {

using db::DbManager;
using system::filesystem::GetFileNameFromPath;

constexpr int kFastHashUid = 1;

long long libraryBookId(const std::string& bookHash) {
    const std::string uid = utilities::SerializationUtils::FromHex(bookHash);
    return DbManager::Instance()->GetBookIdByUid(kFastHashUid, uid);
}

struct TitleAndAuthor {
    std::string title;
    std::string author;
};

TitleAndAuthor libraryTitleAndAuthor(long long bookId) {
    TitleAndAuthor found;
    DbManager::Instance()->GetBookTitleAndAuthor(bookId, &found.title, &found.author);
    return found;
}

std::string withoutTrailingSeparators(std::string path) {
    path.erase(path.find_last_not_of("/\\") + 1);
    return path;
}

}  // namespace

std::string NotesExporterImpl::getBookTitle(const std::string& bookHash) {
    std::string title = getBookTitleFromExplorerDB(bookHash);
    return title.empty() ? getBookTitleFromReaderDB(bookHash) : title;
}

std::string NotesExporterImpl::getBookTitleFromExplorerDB(const std::string& bookHash) {
    const long long bookId = libraryBookId(bookHash);
    if (bookId < 0) {
        return {};
    }
    std::string title = libraryTitleAndAuthor(bookId).title;
    if (!title.empty()) {
        return title;
    }
    return GetFileNameFromPath(
        DbManager::Instance()->GetBookLocalFilePath(bookId).string());
}

std::string NotesExporterImpl::getBookTitleFromReaderDB(const std::string& bookHash) {
    utilities::ReaderDbManager readerDb;
    const std::vector<utilities::Book> books = readerDb.getBookByFastHash(bookHash);
    if (books.empty()) {
        return {};
    }
    const utilities::Book& book = books.front();
    if (!book.title.empty() || book.path.empty()) {
        return book.title;
    }
    return GetFileNameFromPath(withoutTrailingSeparators(book.path));
}

std::string NotesExporterImpl::getBookAuthorFromExplorerDB(const std::string& bookHash) {
    const long long bookId = libraryBookId(bookHash);
    return bookId < 0 ? std::string() : libraryTitleAndAuthor(bookId).author;
}

}  // namespace veloran
