// The lists of books or notes that commands print, in several formats.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <utility>

#include "client/collection/book.h"
#include "client/collection/note.h"
#include "client/text/iso_time.h"
#include "client/text/numbers.h"

namespace client {

// The list is complete after end(). Constructors may write already.
class BookListing {
public:
    explicit BookListing(std::ostream& out) : out_(out) {}
    virtual ~BookListing() = default;
    virtual void add(const Book& book) = 0;
    virtual void end() {}

protected:
    std::ostream& out_;
};

// The folder in which pictures are written; none if `path` is empty.
struct FolderForPictures {
    std::string path;
    std::string linked;  // the path in links
};

struct NoteListingOptions {
    bool severalBooks;  // print the book of each note or group of notes
    FolderForPictures pictures;
};

class NoteListing {
public:
    NoteListing(std::ostream& out, NoteListingOptions options)
        : out_(out), options_(std::move(options)) {}
    virtual ~NoteListing() = default;
    // Sets the book of the next notes.
    virtual void startBook(const Book& book) = 0;
    virtual void add(const Note& note) = 0;
    virtual void end() {}

protected:
    std::ostream& out_;
    const NoteListingOptions options_;
};

struct ListingFormat {
    const char* name;
    // Null if the format is for notes only.
    std::unique_ptr<BookListing> (*listBooks)(std::ostream& out);
    std::unique_ptr<NoteListing> (*listNotes)(std::ostream& out,
                                              const NoteListingOptions& options);
};

template <class Books>
std::unique_ptr<BookListing> makeBookListing(std::ostream& out) {
    return std::make_unique<Books>(out);
}

template <class Notes>
std::unique_ptr<NoteListing> makeNoteListing(std::ostream& out,
                                             const NoteListingOptions& options) {
    return std::make_unique<Notes>(out, options);
}

extern const ListingFormat kLineFormat;
extern const ListingFormat kJsonFormat;
extern const ListingFormat kCsvFormat;
extern const ListingFormat kMarkdownFormat;
extern const ListingFormat kAnnotationFormat;  // for the notes of one book

inline constexpr const ListingFormat* kListingFormats[] = {
    &kLineFormat, &kJsonFormat, &kCsvFormat, &kMarkdownFormat, &kAnnotationFormat};

inline std::string pageText(const Note& note) {
    return note.place.page ? decimal(*note.place.page) : std::string();
}

inline std::string locationText(const Note& note) {
    return note.place.location ? std::to_string(*note.place.location) : std::string();
}

// Returns the page after its name, or else the location after its name; empty if the note
// has neither.
inline std::string placeText(const Note& note, const char* page, const char* location) {
    return note.place.page       ? page + pageText(note)
           : note.place.location ? location + locationText(note)
                                 : std::string();
}

inline std::string timeText(const Note& note) {
    return note.time == 0 ? std::string() : isoTime(note.time);
}

}  // namespace client
