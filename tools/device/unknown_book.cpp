#include "device/unknown_book.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "device/nearest_books.h"
#include "store/database_paths.h"
#include "store/reader_store.h"
#include "terminal/complaint.h"
#include "terminal/one_line.h"

namespace {

using Books = std::vector<host::BookEntry>;

constexpr std::size_t kMostNamed = 3;

std::string named(const Books& books) {
    std::string lines;
    for (std::size_t i = 0; i < std::min(books.size(), kMostNamed); ++i) {
        lines +=
            "  " + oneLine(books[i].fastHash) + "  \"" + oneLine(books[i].title) + "\"\n";
    }
    return lines;
}

Books titled(const std::string& typed, const Books& books) {
    Books result;
    std::copy_if(books.begin(), books.end(), std::back_inserter(result),
                 [&](const host::BookEntry& book) { return startsTitle(typed, book); });
    return result;
}

std::string suggestions(const std::string& typed, const Books& books) {
    if (const Books meant = titled(typed, books); !meant.empty()) {
        return ", but a title starts so:\n" + named(meant);
    }
    return ". Nearest:\n" + named(byNearness(typed, books));
}

}  // namespace

void complainAboutUnknownBook(const std::string& typed) {
    const Books books = host::ReaderStore(host::kReaderDatabasePath).books();
    const std::string start = "No book has the hash " + oneLine(typed);
    if (books.empty()) {
        throw Complaint(start +
                        ": the device holds none. \"notes-export load\" puts some on.");
    }
    throw Complaint(start + suggestions(typed, books) +
                    "\"notes-export books\" lists them all.");
}
