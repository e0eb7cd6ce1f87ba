// For people: one line for each, its fields separated by tabs.
#include "client/collection/book_notes.h"
#include "client/listings/listing.h"
#include "client/terminal/terminal.h"
#include "client/text/numbers.h"
#include "client/text/one_line.h"

namespace {

class BookLines : public BookListing {
public:
    explicit BookLines(std::ostream& out) : out_(out) {}

    void add(const ListedBook& book) override {
        out_ << oneLine(book.hash) << '\t' << bold(oneLine(book.title)) << '\t'
             << oneLine(book.author) << '\n';
    }

private:
    std::ostream& out_;
};

class NoteLines : public NoteListing {
public:
    NoteLines(std::ostream& out, const NoteListingOptions& options)
        : out_(out), severalBooks_(options.severalBooks) {}

    void startBook(const ListedBook& book) override {
        start_ = severalBooks_ ? oneLine(book.hash) + '\t' : std::string();
    }

    void add(const veloran::utilities::Note& note) override {
        const auto page = pageOf(note);
        out_ << start_ << note.noteId << '\t' << (page ? decimal(*page) : std::string())
             << '\t' << oneLine(note.getColor()) << '\t' << oneLine(note.getText()) << '\n';
    }

private:
    std::ostream& out_;
    bool severalBooks_;
    std::string start_;  // of the line of each note
};

std::unique_ptr<BookListing> listBooks(std::ostream& out) {
    return std::make_unique<BookLines>(out);
}

std::unique_ptr<NoteListing> listNotes(std::ostream& out,
                                       const NoteListingOptions& options) {
    return std::make_unique<NoteLines>(out, options);
}

}  // namespace

const ListingFormat kLineFormat = {"lines", listBooks, listNotes};
