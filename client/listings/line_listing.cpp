// Lists for people: one line for each book or note, its fields separated by tabs.
#include "client/listings/listing.h"
#include "client/terminal/terminal.h"
#include "client/text/control_characters.h"

namespace client {
namespace {

class BookLines : public BookListing {
public:
    using BookListing::BookListing;

    void add(const Book& book) override {
        out_ << oneLine(book.hash) << '\t' << bold(oneLine(book.title)) << '\t'
             << oneLine(book.author) << '\n';
    }
};

class NoteLines : public NoteListing {
public:
    using NoteListing::NoteListing;

    void startBook(const Book& book) override {
        start_ = options_.severalBooks ? oneLine(book.hash) + '\t' : std::string();
    }

    void add(const Note& note) override {
        out_ << start_ << note.id << '\t' << placeText(note, "", "loc. ") << '\t'
             << oneLine(note.color) << '\t' << oneLine(note.text) << '\n';
    }

private:
    std::string start_;  // the start of each note's line
};

}  // namespace

constexpr ListingFormat kLineFormat = {"lines", makeBookListing<BookLines>,
                                       makeNoteListing<NoteLines>};

}  // namespace client
