#include "client/sources/kobo/kobo_database.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <filesystem>
#include <new>
#include <unordered_map>
#include <utility>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/content/book_shelf.h"
#include "client/sources/kobo/bookmark.h"
#include "client/sources/kobo/contents.h"
#include "client/sources/kobo/schema.h"
#include "client/text/affixes.h"
#include "client/text/iso_time.h"
#include "client/text/percent_encoding.h"

namespace client {

namespace fs = std::filesystem;

namespace {

// Encodes the path, because SQLite reads some characters as parts of the URI.
std::string uriOf(const std::string& path) {
    return "file:" +
           percentEncoded(path,
                          [](unsigned char byte) {
                              return byte != '%' && byte != '?' && byte != '#';
                          }) +
           "?mode=ro&immutable=1";
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

std::string withoutSpaces(const std::string& text) {
    constexpr std::string_view kSpaces[] = {" ", "\t", "\r", "\n"};
    return std::string(trimmed(text, kSpaces));
}

// Returns the picture of handwriting; empty if there is none.
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
    Reader(SQLite::Database& database, std::string path, ReadLimit& limit)
        : path_(std::move(path)), contents_(database, limit), bookmarks_(database, limit) {}

    SourceContent read();

private:
    ShelvedBook& bookOf(const std::string& volume);
    void addNote(const KoboBookmark& bookmark);

    const std::string path_;
    const KoboContents contents_;
    KoboBookmarks bookmarks_;
    BookShelf shelf_;
    std::unordered_map<std::string, ShelvedBook*> books_;  // by volume
};

// A book without a title in the database is named after its file. The hash of a title is
// only computed once, because the title may be long.
ShelvedBook& Reader::bookOf(const std::string& volume) {
    ShelvedBook*& shelved = books_[volume];
    if (shelved == nullptr) {
        const KoboBook* book = contents_.book(volume);
        shelved = book != nullptr && !book->title.empty()
                      ? &shelf_.book(book->title, book->author)
                      : &shelf_.book(fs::path(volume).filename().string(), "");
    }
    return *shelved;
}

void Reader::addNote(const KoboBookmark& bookmark) {
    Note note;
    note.uuid = bookmark.uuid.empty() ? bookmark.id : bookmark.uuid;
    note.place = contents_.placeOf(bookmark);
    note.place.chapter = withoutSpaces(note.place.chapter);
    note.color = colorOf(bookmark);
    note.text = withoutSpaces(bookmark.text);
    note.comment = withoutSpaces(bookmark.annotation);
    note.picture = pictureOf(bookmark, path_);
    note.time = timeOf(bookmark);
    bookOf(bookmark.volume)
        .add(std::move(note), {bookmark.type, bookmark.content, bookmark.created});
}

SourceContent Reader::read() {
    SourceContent content;
    for (KoboBookmark bookmark; bookmarks_.next(bookmark);) {
        if (bookmark.volume.empty()) {
            content.skipped.add("the bookmark " + bookmark.id + " names no book");
        } else if (!isHidden(bookmark)) {
            addNote(bookmark);
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
        requireKoboTables(database, path);
        ReadLimit limit(database, path);
        SourceContent content = Reader(database, path, limit).read();
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
        throw UserError(path + ": " + error.what());
    }
}

}  // namespace client
