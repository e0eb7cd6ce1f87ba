#include "client/sources/clippings/passages.h"

#include <string.h>

#include <algorithm>
#include <string>
#include <utility>

namespace client {
namespace {

bool isMarked(const Clipping& clipping) {
    return clipping.kind == ClippingKind::Highlight ||
           clipping.kind == ClippingKind::Article;
}

// Returns whether `text` contains `part`, in linear time.
bool contains(const std::string& text, const std::string& part) {
    return memmem(text.data(), text.size(), part.data(), part.size()) != nullptr;
}

bool contains(const ClippingRange& range, const ClippingRange& part) {
    return part.first >= range.first && part.last <= range.last;
}

std::int64_t timeOfText(const Note& note) { return std::max(note.time, note.changeTime); }

std::int64_t timeOfComment(const Note& note) {
    return std::max(note.time, note.commentTime);
}

std::int64_t positionOf(const std::optional<ClippingRange>& range) {
    return range ? range->first : 0;
}

// Adds `more` to `all`, in the time of the shorter one.
void append(std::vector<std::size_t>& all, std::vector<std::size_t> more) {
    if (all.size() < more.size()) {
        all.swap(more);
    }
    all.insert(all.end(), more.begin(), more.end());
}

}  // namespace

// Pages count only for clippings without a location.
void Passages::add(Clipping clipping) {
    const std::size_t index = marks_.size();
    const bool isLocated = clipping.location.has_value();
    marks_.push_back(
        {std::move(clipping.note), isLocated ? clipping.location : clipping.page});
    Marks& marks = isLocated ? withLocation_ : withPage_;
    if (!marks_.back().range) {
        return;
    }
    if (isMarked(clipping)) {
        addPassage(marks, index);
    } else if (clipping.kind == ClippingKind::Note) {
        addRemark(marks, index);
    }
}

void Passages::addPassage(Marks& marks, std::size_t index) {
    const ClippingRange range = *marks_[index].range;
    for (std::size_t* latest :
         {&marks.byStart.try_emplace(range.first, index).first->second,
          &marks.byEnd.try_emplace(range.last, index).first->second}) {
        replaceIfContained(std::exchange(*latest, index), index);
    }
    marks.passages.add(range, index);
    const auto first = marks.remarks.lower_bound(range.first);
    const auto end = marks.remarks.upper_bound(range.last);
    for (auto remark = first; remark != end; ++remark) {
        attach(remark->second, marks_[index]);
    }
    marks.remarks.erase(first, end);
}

void Passages::addRemark(Marks& marks, std::size_t index) {
    const std::int64_t position = marks_[index].range->first;
    if (const auto passage = marks.passages.at(position)) {
        attach(index, marks_[*passage]);
    } else {
        marks.remarks.emplace(position, index);
    }
}

void Passages::replaceIfContained(std::size_t earlierIndex, std::size_t laterIndex) {
    Mark& earlier = marks_[earlierIndex];
    Mark& later = marks_[laterIndex];
    if (earlierIndex == laterIndex || earlier.isDropped ||
        !contains(*later.range, *earlier.range) ||
        !contains(later.note.text, earlier.note.text)) {
        return;
    }
    replaced_.add(later.note);
    replaced_.add(earlier.note);
    later.note.uuid = std::move(earlier.note.uuid);
    later.note.page = later.note.page ? later.note.page : earlier.note.page;
    later.note.changeTime = std::max(later.note.changeTime, timeOfText(earlier.note) + 1);
    if (!earlier.remarks.empty()) {
        later.note.commentTime =
            std::max(later.note.commentTime, timeOfComment(earlier.note) + 1);
        append(later.remarks, std::move(earlier.remarks));
    }
    earlier = {};
    earlier.isDropped = true;
}

void Passages::attach(std::size_t remarkIndex, Mark& passage) {
    Mark& remark = marks_[remarkIndex];
    replaced_.add(remark.note);
    const std::int64_t later =
        passage.remarks.empty() ? remark.note.time : timeOfComment(passage.note) + 1;
    passage.note.commentTime =
        std::max({passage.note.commentTime, remark.note.time, later});
    passage.remarks.push_back(remarkIndex);
    remark.isDropped = true;
}

// Of a remark and a later one at the same position that contains it, only the later one
// counts.
std::string Passages::commentOf(Mark& mark) const {
    const auto position = [this](std::size_t remark) {
        return std::pair(positionOf(marks_[remark].range), remark);
    };
    std::sort(mark.remarks.begin(), mark.remarks.end(),
              [&](std::size_t a, std::size_t b) { return position(a) < position(b); });
    std::string comment;
    std::size_t latest = 0;  // offset of the latest remark
    for (const std::size_t remark : mark.remarks) {
        const std::string& text = marks_[remark].note.comment;
        if (!contains(text, comment.substr(latest))) {
            comment += "\u2029";  // PARAGRAPH SEPARATOR
            latest = comment.size();
        }
        comment.replace(latest, std::string::npos, text);
    }
    return comment;
}

std::vector<std::size_t> Passages::remainingByPosition() const {
    std::vector<std::size_t> indices;
    for (std::size_t i = 0; i < marks_.size(); ++i) {
        if (!marks_[i].isDropped) {
            indices.push_back(i);
        }
    }
    std::stable_sort(indices.begin(), indices.end(), [this](std::size_t a, std::size_t b) {
        return positionOf(marks_[a].range) < positionOf(marks_[b].range);
    });
    return indices;
}

void Passages::moveTo(IncomingBook& book) {
    for (const std::size_t index : remainingByPosition()) {
        Mark& mark = marks_[index];
        if (!mark.remarks.empty()) {
            mark.note.comment = commentOf(mark);
        }
        book.notes.add(mark.note);
        mark.note = {};
    }
    book.replaced = std::move(replaced_);
    marks_.clear();
}

}  // namespace client
