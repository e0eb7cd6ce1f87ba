// Lists for spreadsheets: comma-separated values, RFC 4180, with a line of headings.
#include <initializer_list>

#include "client/listings/csv_cell.h"
#include "client/listings/listing.h"

namespace client {
namespace {

// Without it, Excel reads the file in the encoding of the system's language.
constexpr char kByteOrderMark[] = "\uFEFF";

void writeRow(std::ostream& out, std::initializer_list<std::string> texts) {
    const char* separator = "";
    for (const std::string& text : texts) {
        out << separator << csvCell(text);
        separator = ",";
    }
    out << "\r\n";
}

class CsvBooks : public BookListing {
public:
    explicit CsvBooks(std::ostream& out) : BookListing(out) {
        out_ << kByteOrderMark;
        writeRow(out_, {"hash", "title", "author", "path"});
    }

    void add(const Book& book) override {
        writeRow(out_, {book.hash, book.title, book.author, book.path});
    }
};

class CsvNotes : public NoteListing {
public:
    CsvNotes(std::ostream& out, const NoteListingOptions& options)
        : NoteListing(out, options) {
        out_ << kByteOrderMark;
        writeRow(out_, {"book", "author", "page", "colour", "text", "comment", "time",
                        "uuid", "location", "chapter"});
    }

    void startBook(const Book& book) override { book_ = book; }

    void add(const Note& note) override {
        writeRow(out_, {nameOf(book_), book_.author, pageText(note), note.color, note.text,
                        note.comment, timeText(note), note.uuid, locationText(note),
                        note.place.chapter});
    }

private:
    Book book_;
};

}  // namespace

constexpr ListingFormat kCsvFormat = {"csv", makeBookListing<CsvBooks>,
                                      makeNoteListing<CsvNotes>};

}  // namespace client
