#include "client/sources/exported_page/exported_page.h"

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <utility>
#include <vector>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/content/book_shelf.h"
#include "client/sources/exported_page/encoding.h"
#include "client/sources/exported_page/visible_page.h"
#include "client/text/ascii.h"
#include "client/text/iso_time.h"
#include "dump/import_result.h"
#include "dump/reader.h"
#include "store/book_hash.h"

namespace client {
namespace {

// Returns the heading's local time, in seconds since the Unix epoch; 0 if it has none.
std::int64_t timeIn(const std::string& date) {
    const auto time = parseIsoTime(date);
    if (!time) {
        return 0;
    }
    const auto asUtc = static_cast<std::time_t>(*time);
    std::tm local{};
    gmtime_r(&asUtc, &local);
    local.tm_isdst = -1;
    return std::mktime(&local);
}

struct Heading {
    std::string date;
    std::string title;
};

Heading parseHeading(const std::string& text) {
    constexpr std::size_t kDateLength = 19;  // "2026-03-07 09:05:01"
    constexpr const char* kSeparator = " - ";
    if (text.compare(std::min(kDateLength, text.size()), 3, kSeparator) != 0) {
        return {"", text};
    }
    return {text.substr(0, kDateLength), text.substr(kDateLength + 3)};
}

// Returns the book. If the page has a hash of another form, a new one is derived from title
// and author.
ShelvedBook& bookOf(const VisiblePage& page, const std::string& title, BookShelf& shelf) {
    const std::string hash = asciiLowered(page.bookHash);
    return host::isBookHash(hash) ? shelf.book(hash, title, page.author)
                                  : shelf.book(title, page.author);
}

std::vector<IncomingBook> visibleBook(VisiblePage& page, SkippedRecords& skipped) {
    const Heading heading = parseHeading(page.heading);
    BookShelf shelf;
    ShelvedBook& book = bookOf(page, heading.title, shelf);
    for (Note& note : page.notes) {
        note.time = timeIn(heading.date);
        const Identity identity = {note.text, note.comment};
        book.add(std::move(note), identity);
    }
    for (const std::string& uuid : page.unreadable) {
        skipped.add("the picture of the note " + uuid + " is not in the page");
    }
    return shelf.take();
}

// Returns no book if there is no dump that this platform can read.
std::vector<IncomingBook> recordedBooks(const std::string& path, const VisiblePage& page,
                                        SkippedRecords& skipped) {
    std::vector<IncomingBook> books;
    try {
        for (host::BookRecord& record : host::readDump(path)) {
            const bool isOfPage = record.fastHash == asciiLowered(page.bookHash);
            books.push_back(
                {{record.fastHash, record.title, isOfPage ? page.author : "", record.path},
                 {},
                 std::move(record.notes)});
        }
    } catch (const host::DumpError& error) {
        if (error.result != host::kNoDump) {
            skipped.add(std::string(error.what()) + "; what the page shows was read");
        }
    }
    return books;
}

}  // namespace

bool isExportedPage(std::string_view start) {
    std::string text(start);
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());  // of UTF-16
    return text.find("<html") != std::string::npos &&
           (text.find("Veloran Bookmarks Export") != std::string::npos ||
            text.find("x-veloran-dbdump") != std::string::npos ||
            text.find("bookmark bm-color-") != std::string::npos);
}

SourceContent readExportedPage(const std::string& path) {
    const std::string html = htmlAsUtf8(readFile(path));
    VisiblePage page = readVisiblePage(html);
    SourceContent content;
    content.books = recordedBooks(path, page, content.skipped);
    if (content.books.empty() && page.heading.empty() && page.notes.empty()) {
        throw UserError(path + ": neither a dump nor a note can be read in it");
    }
    if (content.books.empty()) {
        content.books = visibleBook(page, content.skipped);
    }
    return content;
}

}  // namespace client
