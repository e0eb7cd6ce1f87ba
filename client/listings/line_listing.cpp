// Lists for people: one line for each book or note, its fields separated by tabs.
#include "client/listings/listing.h"
#include "client/terminal/terminal.h"
#include "client/text/control_characters.h"

namespace client {
namespace {

class BookLines : public BookListing {
public:
    explicit BookLines(std::ostream& out) : out_(out) {}

    void add(const Book& book) override {
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

    void startBook(const Book& book) override {
        start_ = severalBooks_ ? oneLine(book.hash) + '\t' : std::string();
    }

    void add(const Note& note) override {
        out_ << start_ << note.id << '\t' << placeText(note, "", "loc. ") << '\t'
             << oneLine(note.color) << '\t' << oneLine(note.text) << '\n';
    }

private:
    std::ostream& out_;
    bool severalBooks_;
    std::string start_;  // the start of each note's line
};

}  // namespace

constexpr ListingFormat kLineFormat = listingFormat<BookLines, NoteLines>("lines");

}  // namespace client
