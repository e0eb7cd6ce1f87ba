#include "client/sources/clippings/passages.h"

#include <string.h>

#include <algorithm>
#include <string>
#include <utility>

#include "client/text/line_breaks.h"

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
Passages::Mark Passages::markOf(Clipping clipping) {
    Note& note = clipping.note;
    Mark mark;
    mark.isRemark = clipping.kind == ClippingKind::Note;
    mark.range = clipping.location ? clipping.location : clipping.page;
    mark.hasLocation = clipping.location.has_value();
    mark.page = note.place.page;
    mark.time = mark.changeTime = mark.commentTime = note.time;
    mark.uuid = std::move(note.uuid);
    mark.text = std::move(mark.isRemark ? note.comment : note.text);
    return mark;
}

// Returns the mark's note without its remarks.
Note Passages::noteOf(const Mark& mark) {
    Note note;
    note.uuid = mark.uuid;
    note.place.page = mark.page;
    if (mark.hasLocation) {
        note.place.location = mark.range->first;
    }
    (mark.isRemark ? note.comment : note.text) = mark.text;
    note.time = mark.time;
    note.changeTime = mark.changeTime;
    note.commentTime = mark.commentTime;
    return note;
}

void Passages::add(Clipping clipping) {
    std::optional<Marks>& marks = clipping.location ? withLocation_ : withPage_;
    const bool isPassage = isMarked(clipping);
    const std::size_t index = marks_.size();
    marks_.push_back(markOf(std::move(clipping)));
    const Mark& mark = marks_.back();
    if (!mark.range || !(isPassage || mark.isRemark)) {
        return;
    }
    if (!marks) {
        marks.emplace();
    }
    if (isPassage) {
        addPassage(*marks, index);
    } else {
        addRemark(*marks, index);
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
        !contains(*later.range, *earlier.range) || !contains(later.text, earlier.text)) {
        return;
    }
    replaced_.add(noteOf(later));
    replaced_.add(noteOf(earlier));
    later.uuid = std::move(earlier.uuid);
    later.page = later.page ? later.page : earlier.page;
    later.changeTime = std::max(later.changeTime, earlier.changeTime + 1);
    later.commentTime = std::max(later.commentTime, earlier.commentTime + 1);
    append(later.remarks, std::move(earlier.remarks));
    earlier = {};
    earlier.isDropped = true;
}

void Passages::attach(std::size_t remarkIndex, Mark& passage) {
    Mark& remark = marks_[remarkIndex];
    replaced_.add(noteOf(remark));
    // A longer comment must be newer than the one that an earlier load stored.
    const std::int64_t next = passage.commentTime + (passage.remarks.empty() ? 0 : 1);
    passage.commentTime = std::max(remark.time, next);
    passage.remarks.push_back(remarkIndex);
    remark.isDropped = true;
}

// Returns whether the later remark is at the same position and contains the earlier one.
bool Passages::isEdited(const Mark& earlier, const Mark& later) {
    return positionOf(earlier.range) == positionOf(later.range) &&
           contains(later.text, earlier.text);
}

// Leaves out the earlier versions of a remark that was edited.
std::string Passages::commentOf(std::vector<std::size_t> remarks) const {
    const auto position = [this](std::size_t remark) {
        return std::pair(positionOf(marks_[remark].range), remark);
    };
    std::sort(remarks.begin(), remarks.end(),
              [&](std::size_t a, std::size_t b) { return position(a) < position(b); });
    std::string comment;
    const Mark* latest = nullptr;
    for (const std::size_t index : remarks) {
        const Mark& remark = marks_[index];
        if (remark.text.empty()) {
            continue;
        }
        if (latest != nullptr && isEdited(*latest, remark)) {
            comment.resize(comment.size() - latest->text.size());
        } else if (latest != nullptr) {
            comment += kParagraphEnd;
        }
        comment += remark.text;
        latest = &remark;
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
    withLocation_.reset();  // frees memory for the notes
    withPage_.reset();
    for (const std::size_t index : remainingByPosition()) {
        const Mark& mark = marks_[index];
        Note note = noteOf(mark);
        if (!mark.isRemark) {
            note.comment = commentOf(mark.remarks);
        }
        book.notes.add(std::move(note));
    }
    book.replaced = std::move(replaced_);
}

}  // namespace client
