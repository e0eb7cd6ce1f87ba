#include "client/sources/kobo/kobo_database.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <algorithm>
#include <filesystem>
#include <tuple>
#include <utility>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/content/book_shelf.h"
#include "client/sources/kobo/bookmark.h"
#include "client/text/iso_time.h"

namespace fs = std::filesystem;

namespace {

// SQLite would take some characters of a path for parts of the URI.
std::string uriOf(const std::string& path) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string uri = "file:";
    for (const char byte : path) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '%' || byte == '?' || byte == '#') {
            uri.append({'%', kDigits[code >> 4U], kDigits[code & 15U]});
        } else {
            uri += byte;
        }
    }
    return uri + "?mode=ro&immutable=1";
}

// The database comes from elsewhere: its schema must not do anything by itself.
void distrust(SQLite::Database& database) {
    constexpr int kMostBytes = 64 << 20;  // of one value
    sqlite3* const handle = database.getHandle();
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(handle, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, kMostBytes);
}

void complainUnlessKobo(SQLite::Database& database, const std::string& path) {
    SQLite::Statement tables(database,
                             "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND "
                             "rootpage > 0 AND name IN ('Bookmark', 'content')");
    tables.executeStep();
    if (tables.getColumn(0).getInt() != 2) {
        throw Complaint(path +
                        " is no database of a Kobo reader: one has the tables Bookmark "
                        "and content.");
    }
}

bool isHidden(const KoboBookmark& bookmark) {
    return bookmark.hidden == "true" || bookmark.hidden == "1";
}

std::int64_t timeOf(const KoboBookmark& bookmark) {
    const auto modified = parseIsoTime(bookmark.modified);
    const auto time = modified ? modified : parseIsoTime(bookmark.created);
    return time.value_or(0);
}

std::string colorOf(const KoboBookmark& bookmark) {
    constexpr const char* kNames[] = {"yellow", "pink", "blue", "green", "grey"};
    const std::string& color = bookmark.color;
    const bool isKnown = color.size() == 1 && color[0] >= '0' && color[0] <= '4';
    return isKnown ? kNames[color[0] - '0'] : "";
}

std::string trimmed(const std::string& text) {
    constexpr const char* kSpaces = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kSpaces);
    return first == std::string::npos
               ? ""
               : text.substr(first, text.find_last_not_of(kSpaces) - first + 1);
}

// Of what was written by hand; empty when it is not there.
std::string pictureOf(const KoboBookmark& bookmark, const fs::path& database) {
    constexpr const char* kOfNames =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
    if (bookmark.type != "markup" ||
        bookmark.id.find_first_not_of(kOfNames) != std::string::npos) {
        return {};
    }
    const fs::path picture = database.parent_path() / "markups" / (bookmark.id + ".jpg");
    std::error_code failure;
    return fs::is_regular_file(picture, failure) ? readFile(picture) : "";
}

// Reads the bookmarks of one database onto a shelf.
class Reader {
public:
    Reader(SQLite::Database& database, std::string path)
        : path_(std::move(path)),
          contents_(readContents(database)),
          bookmarks_(readBookmarks(database)) {}

    SourceContent read();

private:
    std::int64_t chapterOf(const KoboBookmark& bookmark) const;
    std::size_t bookOf(const KoboBookmark& bookmark);
    void take(const KoboBookmark& bookmark);

    const std::string path_;
    const KoboContents contents_;
    std::vector<KoboBookmark> bookmarks_;
    BookShelf shelf_;
};

// A bookmark may name a place within the chapter behind a "#".
std::int64_t Reader::chapterOf(const KoboBookmark& bookmark) const {
    auto chapter = contents_.find(bookmark.chapter);
    if (chapter == contents_.end()) {
        chapter = contents_.find(bookmark.chapter.substr(0, bookmark.chapter.find('#')));
    }
    return chapter == contents_.end() ? 0 : chapter->second.place;
}

// A book that the database does not describe is called after its file.
std::size_t Reader::bookOf(const KoboBookmark& bookmark) {
    const auto book = contents_.find(bookmark.volume);
    const bool hasTitle = book != contents_.end() && !book->second.title.empty();
    return hasTitle ? shelf_.bookOf(book->second.title, book->second.author)
                    : shelf_.bookOf(fs::path(bookmark.volume).filename().string(), "");
}

void Reader::take(const KoboBookmark& bookmark) {
    const std::size_t book = bookOf(bookmark);
    SourceNote note;
    note.uuid = bookmark.uuid.empty() ? bookmark.id : bookmark.uuid;
    if (note.uuid.empty()) {
        note.uuid = derivedName(
            {shelf_.hashOf(book), bookmark.type, bookmark.chapter, bookmark.created});
    }
    note.color = colorOf(bookmark);
    note.text = trimmed(bookmark.text);
    note.comment = trimmed(bookmark.annotation);
    note.image = pictureOf(bookmark, path_);
    note.timestamp = timeOf(bookmark);
    shelf_.add(book, std::move(note));
}

SourceContent Reader::read() {
    SourceContent content;
    const auto place = [this](const KoboBookmark& bookmark) {
        return std::tuple(chapterOf(bookmark), bookmark.progress);
    };
    std::stable_sort(
        bookmarks_.begin(), bookmarks_.end(),
        [&](const KoboBookmark& a, const KoboBookmark& b) { return place(a) < place(b); });
    for (const KoboBookmark& bookmark : bookmarks_) {
        if (bookmark.volume.empty()) {
            content.skipped.add("the bookmark " + bookmark.id + " names no book");
        } else if (!isHidden(bookmark)) {
            take(bookmark);
        }
    }
    content.books = shelf_.take();
    return content;
}

}  // namespace

bool isKoboDatabase(std::string_view start) {
    constexpr std::string_view kHeader("SQLite format 3\0", 16);
    return start.substr(0, kHeader.size()) == kHeader;
}

SourceContent readKoboDatabase(const std::string& path) {
    try {
        SQLite::Database database(uriOf(path), SQLite::OPEN_READONLY | SQLite::OPEN_URI);
        distrust(database);
        complainUnlessKobo(database, path);
        SourceContent content = Reader(database, path).read();
        std::error_code failure;
        if (const std::string log = path + "-wal";
            fs::exists(log, failure) && fs::file_size(log, failure) > 0) {
            content.skipped.add("the newest notes may be in " + log +
                                " alone; eject the reader and connect it again");
        }
        return content;
    } catch (const SQLite::Exception& error) {
        if (error.getErrorCode() == SQLITE_NOMEM) {
            throw std::bad_alloc();
        }
        throw Complaint(path + ": " + error.what());
    }
}
