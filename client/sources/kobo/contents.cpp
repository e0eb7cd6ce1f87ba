#include "client/sources/kobo/contents.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <string_view>

#include "client/text/affixes.h"
#include "client/text/iso_time.h"
#include "client/text/sort_keys.h"

namespace client {
namespace {

// Types of content.
constexpr int kBook = 6;
constexpr int kFile = 9;
constexpr int kHeading = 899;  // in the table of contents

// The number of a chapter that has none in the database: it is after all others.
constexpr std::int64_t kNoIndex = std::numeric_limits<std::int64_t>::max();

// Collections store so much of a title or an order. Each note has its own copy.
constexpr std::size_t kMaxBytes = 1000;

// Returns the identifier without the number and without the position in the file:
// "BOOK#(12)part.html" gives "BOOK#part.html", and "BOOK!!part.html#p2" "BOOK!!part.html".
std::string fileOf(std::string id) {
    const std::size_t name = id.find_last_of("/!)");
    id.resize(std::min(id.size(), id.find('#', name == std::string::npos ? 0 : name)));
    const std::size_t number = id.find("#(");
    const std::size_t end = id.find(')', number);
    return end == std::string::npos ? id : id.erase(number + 1, end - number);
}

// Returns the file of a path such as "part.html#point(/1/4:550)", which only books without
// the identifiers of Kobo have, or else an empty text.
std::string_view fileIn(std::string_view path) {
    const std::size_t end = path.find("#point(");
    return path.substr(0, end == std::string_view::npos ? 0 : end);
}

// Returns the key of the file, by which part2.html is before part10.html.
std::string keyOfFile(const std::string& file) {
    return file.size() > kMaxBytes ? file : sortKeyOfName(file);  // limits the memory
}

// Returns an empty text if the title is only the name of a file.
std::string titleIn(const std::string& title) {
    constexpr std::string_view kFiles[] = {".xhtml", ".html", ".htm", ".xml"};
    return suffixLength(title, kFiles) == 0 ? title.substr(0, kMaxBytes) : "";
}

// Returns the key of the number, or of 0 if it is negative.
std::string keyOf(std::int64_t number) {
    return sortKey(static_cast<std::uint64_t>(std::max<std::int64_t>(number, 0)));
}

// An order has at most two of these keys.
std::string keyOfNumbers(std::string_view text) {
    constexpr std::size_t kMax = 2 * kMaxBytes / 5;
    return sortKeyOfNumbers(text.substr(0, kMax)).substr(0, kMax);
}

}  // namespace

KoboContents::KoboContents(SQLite::Database& database, ReadLimit& limit) {
    Chapters headings;
    KoboRows rows(database, "content",
                  {"ContentType", "ContentID", "VolumeIndex", "Title", "Attribution",
                   "ChapterIDBookmarked"},
                  limit);
    while (rows.next()) {
        const int type = rows.column(0).getInt();
        const std::string id = rows.column(1).getString();
        const SQLite::Column index = rows.column(2);
        const std::string title = rows.column(3).getString();
        const KoboChapter chapter = {index.isNull() ? kNoIndex : index.getInt64(),
                                     titleIn(title)};
        if (type == kBook) {
            books_[id] = {title, rows.column(4).getString()};
        } else if (type == kFile) {
            add(chapters_, id, chapter);
        } else if (type == kHeading) {
            const std::string target = rows.column(5).getString();
            add(headings, target.empty() ? id : target, chapter);
        }
    }
    addHeadings(headings);
}

// Keeps the first of several headings in a file: all of the file may be part of it.
void KoboContents::add(Chapters& chapters, const std::string& id,
                       const KoboChapter& chapter) {
    const auto [known, isNew] = chapters.try_emplace(keyOfFile(fileOf(id)), chapter);
    if (!isNew && chapter.index < known->second.index) {
        known->second = chapter;
    }
}

// Gives the titles of headings to the files that have none.
void KoboContents::addHeadings(const Chapters& headings) {
    for (const auto& [file, heading] : headings) {
        KoboChapter& chapter = chapters_.try_emplace(file, heading).first->second;
        if (chapter.title.empty()) {
            chapter.title = heading.title;
        }
    }
}

const KoboBook* KoboContents::book(const std::string& id) const {
    const auto found = books_.find(id);
    return found == books_.end() ? nullptr : &found->second;
}

// Prefers the path's file to the bookmark's content, which may be the first chapter for all
// bookmarks of a book. A file that is not in the database continues the chapter before it.
KoboContents::Chapters::const_iterator KoboContents::chapterOf(
    const KoboBookmark& bookmark) const {
    const std::string_view file = fileIn(bookmark.path);
    const std::string wanted = (bookmark.volume + '#').append(file);
    const std::string folder =
        keyOfFile(wanted.substr(0, wanted.size() - file.size() + file.rfind('/') + 1));
    const auto next = chapters_.upper_bound(keyOfFile(wanted));
    const bool isFound = !file.empty() && next != chapters_.begin() &&
                         startsWith(std::prev(next)->first, folder);
    return isFound ? std::prev(next) : chapters_.find(keyOfFile(fileOf(bookmark.content)));
}

// Adds the numbers in the file's name if the database does not have the file or its index.
std::string KoboContents::keyOfChapter(const KoboBookmark& bookmark,
                                       Chapters::const_iterator chapter) const {
    const std::string_view file = fileIn(bookmark.path);
    if (chapter == chapters_.end() || chapter->second.index == kNoIndex) {
        return keyOf(kNoIndex) + keyOfNumbers(file.empty() ? bookmark.content : file);
    }
    const bool isListed = chapter->first == keyOfFile((bookmark.volume + '#').append(file));
    return keyOf(chapter->second.index) + keyOfNumbers(isListed ? "" : file);
}

// "-" ends a list of numbers: it is less than the full stop before the next number.
Place KoboContents::placeOf(const KoboBookmark& bookmark) const {
    if (bookmark.content.empty() && bookmark.path.empty()) {
        return {};
    }
    const auto chapter = chapterOf(bookmark);
    const std::string_view path = bookmark.path;
    const std::string_view position = path.substr(fileIn(path).size());
    Place place;
    place.chapter = chapter == chapters_.end() ? "" : chapter->second.title;
    place.order = "k." + keyOfChapter(bookmark, chapter) + '-' +
                  sortKeyOfFraction(bookmark.progress) + keyOfNumbers(position) + '-' +
                  keyOf(bookmark.offset) + '-' +
                  keyOf(parseIsoTime(bookmark.created).value_or(0));
    return place;
}

}  // namespace client
