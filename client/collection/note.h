// A note: a bookmark, a marked passage with or without a comment, or a picture.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace client {

// Where a note is in its book. Each part is set if its source knows it.
struct Place {
    std::optional<double> page;            // finite
    std::optional<std::int64_t> location;  // that a Kindle counts
    std::string chapter;                   // its title
    std::string order;  // of the note's own position: KIND.TEXT, compared bytewise
};

// An empty text or a time of 0 means that the note has none.
struct Note {
    unsigned long long id = 0;  // in the collection; 0 before it is stored
    std::string uuid;           // names the note within its book
    Place place;
    std::string color;
    std::string text;       // U+2029 ends a paragraph, U+2028 and line feeds break lines
    std::string comment;    // as text
    std::string picture;    // the bytes of an image file
    std::int64_t time = 0;  // when the note was made, in seconds since the Unix epoch
    // The last changes of the comment and of the other parts; ignored unless after `time`.
    std::int64_t commentTime = 0;
    std::int64_t changeTime = 0;
};

// Returns "picture"; or "note" if it has a comment; or "highlight" if it has text; or else
// "bookmark".
inline std::string kindOf(const Note& note) {
    return !note.picture.empty()   ? "picture"
           : !note.comment.empty() ? "note"
           : !note.text.empty()    ? "highlight"
                                   : "bookmark";
}

}  // namespace client
