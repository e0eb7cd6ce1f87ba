// For spreadsheets: comma-separated values, RFC 4180, with a line of headings.
#include <initializer_list>

#include "client/collection/book_notes.h"
#include "client/listings/csv_cell.h"
#include "client/listings/listing.h"
#include "client/text/iso_time.h"
#include "client/text/numbers.h"

namespace {

using veloran::utilities::Note;

// Without it, Excel reads the file in the encoding of the computer's language.
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
    explicit CsvBooks(std::ostream& out) : out_(out) {
        out_ << kByteOrderMark;
        writeRow(out_, {"hash", "title", "author", "path"});
    }

    void add(const ListedBook& book) override {
        writeRow(out_, {book.hash, book.title, book.author, book.path});
    }

private:
    std::ostream& out_;
};

class CsvNotes : public NoteListing {
public:
    explicit CsvNotes(std::ostream& out) : out_(out) {
        out_ << kByteOrderMark;
        writeRow(out_,
                 {"book", "author", "page", "colour", "text", "comment", "time", "uuid"});
    }

    void startBook(const ListedBook& book) override { book_ = book; }

    void add(const Note& note) override {
        const auto page = pageOf(note);
        writeRow(out_, {nameOf(book_), book_.author, page ? decimal(*page) : std::string(),
                        note.getColor(), note.getText(), note.getNote(), timeOf(note),
                        note.uuid()});
    }

private:
    std::ostream& out_;
    ListedBook book_;
};

std::unique_ptr<BookListing> listBooks(std::ostream& out) {
    return std::make_unique<CsvBooks>(out);
}

std::unique_ptr<NoteListing> listNotes(std::ostream& out,
                                       const NoteListingOptions& /*options*/) {
    return std::make_unique<CsvNotes>(out);
}

}  // namespace

const ListingFormat kCsvFormat = {"csv", listBooks, listNotes};
