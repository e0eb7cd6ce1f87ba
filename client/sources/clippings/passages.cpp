#include "client/sources/clippings/passages.h"

#include <string.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <queue>
#include <set>
#include <utility>

namespace {

enum class Unit { Location, Page };

// Where the passage is. Pages count only for passages without a location.
std::optional<ClippingRange> rangeOf(const Passage& passage, Unit unit) {
    const Clipping& record = passage.record;
    return unit == Unit::Location ? record.location
           : record.location      ? std::nullopt
                                  : record.page;
}

bool isMarked(const Passage& passage) {
    return !passage.isDropped && (passage.record.kind == ClippingKind::Highlight ||
                                  passage.record.kind == ClippingKind::Article);
}

// In time that grows with the length of the texts.
bool contains(const std::string& text, const std::string& part) {
    return memmem(text.data(), text.size(), part.data(), part.size()) != nullptr;
}

bool supersedes(const Passage& later, const Passage& earlier, Unit unit) {
    const auto whole = rangeOf(later, unit);
    const auto part = rangeOf(earlier, unit);
    return isMarked(earlier) && part->first >= whole->first && part->last <= whole->last &&
           contains(later.record.text, earlier.record.text);
}

// The passages that were marked last from each start, and to each end.
class Latest {
public:
    explicit Latest(Unit unit) : unit_(unit) {}

    void drop(std::vector<Passage>& passages, std::size_t later) {
        Passage& passage = passages[later];
        const auto range = rangeOf(passage, unit_);
        if (!range || !isMarked(passage)) {
            return;
        }
        for (std::size_t* latest :
             {&place(byStart_, range->first, later), &place(byEnd_, range->last, later)}) {
            Passage& earlier = passages[std::exchange(*latest, later)];
            if (&earlier != &passage && supersedes(passage, earlier, unit_)) {
                earlier.isDropped = true;
                passage.uuid = earlier.uuid;
            }
        }
    }

private:
    using ByPlace = std::map<std::int64_t, std::size_t>;

    static std::size_t& place(ByPlace& places, std::int64_t number, std::size_t latest) {
        return places.try_emplace(number, latest).first->second;
    }

    const Unit unit_;
    ByPlace byStart_;
    ByPlace byEnd_;
};

// A note that holds the one before is a new version of it.
void addComment(Passage& passage, const Passage& note) {
    const std::string& text = note.record.text;
    std::string& comment = passage.comment;
    if (!contains(text, comment.substr(passage.latestComment))) {
        comment += "\u2029";  // PARAGRAPH SEPARATOR
        passage.latestComment = comment.size();
    }
    comment.replace(passage.latestComment, std::string::npos, text);
    passage.commentTimestamp = std::max(passage.commentTimestamp, note.record.timestamp);
}

// Goes through the text once, and knows which passages hold the place where it is.
class Sweep {
public:
    Sweep(const std::vector<Passage>& passages, Unit unit);

    // The passage that holds the place of the note; places must not go back.
    std::optional<std::size_t> passageAt(std::int64_t place, std::size_t note);

private:
    struct Marked {
        ClippingRange range;
        std::size_t passage;
    };

    void goTo(std::int64_t place);

    std::vector<Marked> ahead_;  // the next one last
    std::set<std::size_t> here_;
    using End = std::pair<std::int64_t, std::size_t>;
    std::priority_queue<End, std::vector<End>, std::greater<>> ends_;
};

Sweep::Sweep(const std::vector<Passage>& passages, Unit unit) {
    for (std::size_t i = 0; i < passages.size(); ++i) {
        if (const auto range = rangeOf(passages[i], unit); range && isMarked(passages[i])) {
            ahead_.push_back({*range, i});
        }
    }
    std::sort(ahead_.begin(), ahead_.end(), [](const Marked& a, const Marked& b) {
        return a.range.first > b.range.first;
    });
}

void Sweep::goTo(std::int64_t place) {
    for (; !ahead_.empty() && ahead_.back().range.first <= place; ahead_.pop_back()) {
        here_.insert(ahead_.back().passage);
        ends_.emplace(ahead_.back().range.last, ahead_.back().passage);
    }
    for (; !ends_.empty() && ends_.top().first < place; ends_.pop()) {
        here_.erase(ends_.top().second);
    }
}

std::optional<std::size_t> Sweep::passageAt(std::int64_t place, std::size_t note) {
    goTo(place);
    if (here_.empty()) {
        return std::nullopt;
    }
    const auto next = here_.lower_bound(note);
    return next == here_.begin() ? *next : *std::prev(next);
}

// The user's notes that stand alone so far and have a place in the unit, by place.
std::vector<std::size_t> notesByPlace(const std::vector<Passage>& passages, Unit unit) {
    std::vector<std::size_t> notes;
    for (std::size_t i = 0; i < passages.size(); ++i) {
        if (passages[i].record.kind == ClippingKind::Note && !passages[i].isDropped &&
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

void dropSuperseded(std::vector<Passage>& passages) {
    for (const Unit unit : {Unit::Location, Unit::Page}) {
        Latest latest(unit);
        for (std::size_t i = 0; i < passages.size(); ++i) {
            latest.drop(passages, i);
        }
    }
}

void attachNotes(std::vector<Passage>& passages) {
    for (const Unit unit : {Unit::Location, Unit::Page}) {
        Sweep sweep(passages, unit);
        for (const std::size_t note : notesByPlace(passages, unit)) {
            const std::int64_t place = rangeOf(passages[note], unit)->first;
            if (const auto passage = sweep.passageAt(place, note)) {
                addComment(passages[*passage], passages[note]);
                passages[note].isDropped = true;
            }
        }
    }
    for (Passage& passage : passages) {
        if (passage.record.kind == ClippingKind::Note) {
            passage.comment = std::exchange(passage.record.text, {});
        }
    }
}
