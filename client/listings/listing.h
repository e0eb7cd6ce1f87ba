// What the listing commands print: books or notes, one after another, in a format.
#pragma once

#include <memory>
#include <ostream>
#include <string>

#include "utilities/note.h"

struct ListedBook {
    std::string hash;
    std::string title;
    std::string author;
    std::string path;  // of the book's file
};

// What people call the book: its title, or when it has none its hash.
inline const std::string& nameOf(const ListedBook& book) {
    return book.title.empty() ? book.hash : book.title;
}

// The list is whole after end().
class BookListing {
public:
    virtual ~BookListing() = default;
    virtual void add(const ListedBook& book) = 0;
    virtual void end() {}
};

class NoteListing {
public:
    virtual ~NoteListing() = default;
    // Names the book of the notes that come next.
    virtual void startBook(const ListedBook& book) = 0;
    virtual void add(const veloran::utilities::Note& note) = 0;
    virtual void end() {}
};

// Where pictures are written; an empty path is nowhere.
struct FolderForPictures {
    std::string path;
    std::string linked;  // the path as links name it
};

struct NoteListingOptions {
    bool severalBooks;  // whether each note, or group of notes, tells its book
    FolderForPictures pictures;
};

// A listing writes to `out` from its construction on.
struct ListingFormat {
    const char* name;
    std::unique_ptr<BookListing> (*listBooks)(std::ostream& out);
    std::unique_ptr<NoteListing> (*listNotes)(std::ostream& out,
                                              const NoteListingOptions& options);
};

extern const ListingFormat kLineFormat;
extern const ListingFormat kJsonFormat;
extern const ListingFormat kCsvFormat;
extern const ListingFormat kMarkdownFormat;

inline constexpr const ListingFormat* kListingFormats[] = {&kLineFormat, &kJsonFormat,
                                                           &kCsvFormat, &kMarkdownFormat};
