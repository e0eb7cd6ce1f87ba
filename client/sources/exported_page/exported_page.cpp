#include "client/sources/exported_page/exported_page.h"

#include <algorithm>
#include <cstdint>
#include <set>
#include <string_view>
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
    book.content().onKnownNote = OnKnownNote::AddMissing;
    const std::int64_t time = parseIsoTime(heading.date).value_or(0);
    for (Note& note : page.notes) {
        note.time = time;
        const Identity identity = {note.text, note.comment};
        book.add(std::move(note), identity);
    }
    for (const std::string& uuid : page.unreadable) {
        skipped.add("the picture of the note " + uuid + " is not in the page");
    }
    return shelf.take();
}

IncomingBook recordedBook(host::BookRecord record, const VisiblePage& page) {
    const bool isOfPage = record.fastHash == asciiLowered(page.bookHash);
    IncomingBook book;
    book.book = {record.fastHash, record.title, isOfPage ? page.author : "", record.path};
    book.records = std::move(record.notes);
    return book;
}

// Returns no book if there is no dump that this platform can read.
std::vector<IncomingBook> recordedBooks(const std::string& path, const VisiblePage& page,
                                        SkippedRecords& skipped) {
    std::vector<IncomingBook> books;
    try {
        for (host::BookRecord& record : host::readDump(path)) {
            books.push_back(recordedBook(std::move(record), page));
        }
    } catch (const host::DumpError& error) {
        if (error.result != host::kNoDump) {
            skipped.add(std::string(error.what()) + "; what the page shows was read");
        }
    }
    return books;
}

// Returns whether the page shows notes, and the records are not theirs.
bool areOfAnotherBook(const std::vector<IncomingBook>& books, const VisiblePage& page) {
    std::set<std::string_view> shown;
    for (const Note& note : page.notes) {
        shown.insert(note.uuid);
    }
    const auto isShown = [&](const host::NoteRecord& record) {
        return shown.count(record.uuid) > 0;
    };
    return !shown.empty() &&
           std::none_of(books.begin(), books.end(), [&](const IncomingBook& book) {
               return std::any_of(book.records.begin(), book.records.end(), isShown);
           });
}

}  // namespace

bool isExportedPage(std::string_view start) {
    std::string text(start);
    text.erase(std::remove(text.begin(), text.end(), '\0'), text.end());  // of UTF-16
    text = asciiLowered(text);
    return text.find("<html") != std::string::npos &&
           (text.find("veloran bookmarks export") != std::string::npos ||
            text.find("x-veloran-dbdump") != std::string::npos ||
            text.find("bookmark bm-color-") != std::string::npos);
}

SourceContent readExportedPage(const std::string& path) {
    VisiblePage page = readVisiblePage(htmlAsUtf8(readFile(path)));
    SourceContent content;
    content.books = recordedBooks(path, page, content.skipped);
    if (content.books.empty() && page.heading.empty() && page.notes.empty()) {
        throw UserError(path + ": neither a dump nor a note can be read in it");
    }
    if (content.books.empty()) {
        content.books = visibleBook(page, content.skipped);
    } else if (areOfAnotherBook(content.books, page)) {
        content.skipped.add(
            "its records are another book's; what the page shows was not read");
    }
    return content;
}

}  // namespace client
