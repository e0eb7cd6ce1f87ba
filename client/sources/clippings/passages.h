// Relations between the clippings of one book.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
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
    // Smaller than a clipping: there may be millions.
    struct Mark {
        bool isRemark = false;
        bool isDropped = false;    // merged into another mark
        bool hasLocation = false;  // its range is of locations, else of pages
        std::optional<ClippingRange> range = {};
        std::optional<double> page = {};
        std::int64_t time = 0;
        std::int64_t changeTime = 0;
        std::int64_t commentTime = 0;
        std::string uuid = {};
        std::string text = {};                  // of the passage or of the remark
        std::vector<std::size_t> remarks = {};  // that its comment consists of
    };
    // The marks with a location, or with a page alone.
    struct Marks {
        std::unordered_map<std::int64_t, std::size_t> byStart;  // the latest passage
        std::unordered_map<std::int64_t, std::size_t> byEnd;
        LatestRanges passages;
        std::multimap<std::int64_t, std::size_t> remarks;  // that no passage contains yet
    };

    static Mark markOf(Clipping clipping);
    static Note noteOf(const Mark& mark);
    static bool isEdited(const Mark& earlier, const Mark& later);

    void addPassage(Marks& marks, std::size_t index);
    void addRemark(Marks& marks, std::size_t index);
    void replaceIfContained(std::size_t earlierIndex, std::size_t laterIndex);
    void attach(std::size_t remarkIndex, Mark& passage);
    std::string commentOf(std::vector<std::size_t> remarks) const;
    std::vector<std::size_t> remainingByPosition() const;

    std::vector<Mark> marks_;
    std::optional<Marks> withLocation_;
    std::optional<Marks> withPage_;
    PackedNotes replaced_;
};

}  // namespace client
