#include "client/sources/clippings/passages.h"

#include <string.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <queue>
#include <set>
#include <utility>

namespace client {
namespace {

enum class Unit { Location, Page };

// Pages count only for clippings without a location.
std::optional<ClippingRange> rangeOf(const Clipping& clipping, Unit unit) {
    return unit == Unit::Location ? clipping.location
           : clipping.location    ? std::nullopt
                                  : clipping.page;
}

bool isMarked(const Clipping& passage) {
    return !passage.isDropped && (passage.kind == ClippingKind::Highlight ||
                                  passage.kind == ClippingKind::Article);
}

// Returns whether `text` contains `part`, in linear time.
bool contains(const std::string& text, const std::string& part) {
    return memmem(text.data(), text.size(), part.data(), part.size()) != nullptr;
}

bool supersedes(const Clipping& later, const Clipping& earlier, Unit unit) {
    const auto whole = rangeOf(later, unit);
    const auto part = rangeOf(earlier, unit);
    return isMarked(earlier) && part->first >= whole->first && part->last <= whole->last &&
           contains(later.note.text, earlier.note.text);
}

// The latest passage for each start and for each end.
class Latest {
public:
    explicit Latest(Unit unit) : unit_(unit) {}

    void drop(std::vector<Clipping>& passages, std::size_t later) {
        Clipping& passage = passages[later];
        const auto range = rangeOf(passage, unit_);
        if (!range || !isMarked(passage)) {
            return;
        }
        for (std::size_t* latest : {&latestAt(byStart_, range->first, later),
                                    &latestAt(byEnd_, range->last, later)}) {
            Clipping& earlier = passages[std::exchange(*latest, later)];
            if (&earlier != &passage && supersedes(passage, earlier, unit_)) {
                earlier.isDropped = true;
                passage.origin = earlier.origin;
            }
        }
    }

private:
    using ByPosition = std::map<std::int64_t, std::size_t>;

    static std::size_t& latestAt(ByPosition& positions, std::int64_t position,
                                 std::size_t latest) {
        return positions.try_emplace(position, latest).first->second;
    }

    const Unit unit_;
    ByPosition byStart_;
    ByPosition byEnd_;
};

// Adds a comment. A note that contains the previous one replaces it.
void addComment(Clipping& passage, const Clipping& note) {
    const std::string& text = note.note.text;
    std::string& comment = passage.note.comment;
    if (!contains(text, comment.substr(passage.latestComment))) {
        comment += "\u2029";  // PARAGRAPH SEPARATOR
        passage.latestComment = comment.size();
    }
    comment.replace(passage.latestComment, std::string::npos, text);
    passage.note.commentTime = std::max(passage.note.commentTime, note.note.time);
}

// A pass through the book, with the passages that contain the current position.
class Sweep {
public:
    Sweep(const std::vector<Clipping>& passages, Unit unit);

    // Returns the passage for the note at this position; positions must not decrease.
    std::optional<std::size_t> passageAt(std::int64_t position, std::size_t note);

private:
    struct Marked {
        ClippingRange range;
        std::size_t passage;
    };

    void goTo(std::int64_t position);

    std::vector<Marked> ahead_;  // by descending start
    std::set<std::size_t> here_;
    using End = std::pair<std::int64_t, std::size_t>;
    std::priority_queue<End, std::vector<End>, std::greater<>> ends_;
};

Sweep::Sweep(const std::vector<Clipping>& passages, Unit unit) {
    for (std::size_t i = 0; i < passages.size(); ++i) {
        if (const auto range = rangeOf(passages[i], unit); range && isMarked(passages[i])) {
            ahead_.push_back({*range, i});
        }
    }
    std::sort(ahead_.begin(), ahead_.end(), [](const Marked& a, const Marked& b) {
        return a.range.first > b.range.first;
    });
}

void Sweep::goTo(std::int64_t position) {
    for (; !ahead_.empty() && ahead_.back().range.first <= position; ahead_.pop_back()) {
        here_.insert(ahead_.back().passage);
        ends_.emplace(ahead_.back().range.last, ahead_.back().passage);
    }
    for (; !ends_.empty() && ends_.top().first < position; ends_.pop()) {
        here_.erase(ends_.top().second);
    }
}

std::optional<std::size_t> Sweep::passageAt(std::int64_t position, std::size_t note) {
    goTo(position);
    if (here_.empty()) {
        return std::nullopt;
    }
    const auto next = here_.lower_bound(note);
    return next == here_.begin() ? *next : *std::prev(next);
}

// Returns the user's notes that are not attached yet and have a position in the unit,
// ordered by position.
std::vector<std::size_t> notesByPosition(const std::vector<Clipping>& passages, Unit unit) {
    std::vector<std::size_t> notes;
    for (std::size_t i = 0; i < passages.size(); ++i) {
        if (passages[i].kind == ClippingKind::Note && !passages[i].isDropped &&
            rangeOf(passages[i], unit)) {
            notes.push_back(i);
        }
    }
    std::stable_sort(notes.begin(), notes.end(), [&](std::size_t a, std::size_t b) {
        return rangeOf(passages[a], unit)->first < rangeOf(passages[b], unit)->first;
    });
    return notes;
}

}  // namespace

void dropSuperseded(std::vector<Clipping>& passages) {
    for (std::size_t i = 0; i < passages.size(); ++i) {
        passages[i].origin = i;
    }
    for (const Unit unit : {Unit::Location, Unit::Page}) {
        Latest latest(unit);
        for (std::size_t i = 0; i < passages.size(); ++i) {
            latest.drop(passages, i);
        }
    }
}

void attachNotes(std::vector<Clipping>& passages) {
    for (const Unit unit : {Unit::Location, Unit::Page}) {
        Sweep sweep(passages, unit);
        for (const std::size_t note : notesByPosition(passages, unit)) {
            const std::int64_t position = rangeOf(passages[note], unit)->first;
            if (const auto passage = sweep.passageAt(position, note)) {
                addComment(passages[*passage], passages[note]);
                passages[note].isDropped = true;
            }
        }
    }
    for (Clipping& passage : passages) {
        if (passage.kind == ClippingKind::Note) {
            passage.note.comment = std::exchange(passage.note.text, {});
        }
    }
}

}  // namespace client
