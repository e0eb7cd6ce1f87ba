#include "client/sources/clippings/clipping_notes.h"

#include <algorithm>
#include <utility>

#include "client/sources/clippings/passages.h"

namespace {

std::string shown(const std::optional<ClippingRange>& range) {
    return range ? std::to_string(range->first) + '-' + std::to_string(range->last) : "";
}

std::string uuidOf(const std::string& book, const Clipping& clipping) {
    return derivedName({book, std::to_string(static_cast<int>(clipping.kind)),
                        shown(clipping.location), shown(clipping.page),
                        std::to_string(clipping.timestamp)});
}

SourceNote noteOf(Passage passage) {
    SourceNote note;
    note.uuid = std::move(passage.uuid);
    if (passage.record.page) {
        note.page = static_cast<double>(passage.record.page->first);
    }
    note.text = std::move(passage.record.text);
    note.comment = std::move(passage.comment);
    note.timestamp = passage.record.timestamp;
    note.commentTimestamp = passage.commentTimestamp;
    return note;
}

std::int64_t place(const Passage& passage) {
    const Clipping& record = passage.record;
    const auto& range = record.location ? record.location : record.page;
    return range ? range->first : 0;
}

}  // namespace

void ClippingNotes::add(Clipping clipping) {
    const std::size_t book = shelf_.bookOf(clipping.title, clipping.author);
    records_.resize(std::max(records_.size(), book + 1));
    records_[book].push_back(std::move(clipping));
}

void ClippingNotes::shelve(std::size_t book, std::vector<Clipping> records) {
    std::vector<Passage> passages;
    for (Clipping& record : records) {
        std::string uuid = uuidOf(shelf_.hashOf(book), record);
        passages.push_back({std::move(record), std::move(uuid)});
    }
    dropSuperseded(passages);
    attachNotes(passages);
    std::stable_sort(
        passages.begin(), passages.end(),
        [](const Passage& a, const Passage& b) { return place(a) < place(b); });
    for (Passage& passage : passages) {
        if (!passage.isDropped) {
            shelf_.add(book, noteOf(std::move(passage)));
        }
    }
}

std::vector<SourceBook> ClippingNotes::take() {
    for (std::size_t book = 0; book < records_.size(); ++book) {
        shelve(book, std::exchange(records_[book], {}));
    }
    records_.clear();
    return shelf_.take();
}
