// Relations between the clippings of one book.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <vector>

#include "client/collection/incoming_books.h"
#include "client/sources/clippings/clipping.h"
#include "client/sources/clippings/latest_ranges.h"

namespace client {

// Every clipping changes only what the ones before it gave, so that a file that grows gives
// what the whole file gives:
// - A marked passage replaces each earlier one that it contains, from the same start or to
//   the same end: it gets its uuid, and a later time.
// - A note of the user becomes a comment of the passage that contains its position: of the
//   one that was marked last, or else of the next one that is marked. It stays with it.
class Passages {
public:
    // Adds the next clipping of the file. Its note has its uuid; a note of the user is a
    // comment.
    void add(Clipping clipping);

    // Moves the notes, ordered by position, and those that were replaced, into the book.
    void moveTo(IncomingBook& book);

private:
    struct Mark {
        Note note;
        std::optional<ClippingRange> range;
        std::vector<std::size_t> remarks = {};  // that its comment consists of
        bool isDropped = false;                 // merged into another mark
    };
    // The marks with a location, or with a page alone.
    struct Marks {
        std::map<std::int64_t, std::size_t> byStart;  // the latest passage
        std::map<std::int64_t, std::size_t> byEnd;
        LatestRanges passages;
        std::multimap<std::int64_t, std::size_t> remarks;  // that no passage contains yet
    };

    void addPassage(Marks& marks, std::size_t index);
    void addRemark(Marks& marks, std::size_t index);
    void replaceIfContained(std::size_t earlierIndex, std::size_t laterIndex);
    void attach(std::size_t remarkIndex, Mark& passage);
    std::string commentOf(Mark& mark) const;
    std::vector<std::size_t> remainingByPosition() const;

    std::deque<Mark> marks_;
    Marks withLocation_;
    Marks withPage_;
    PackedNotes replaced_;
};

}  // namespace client
