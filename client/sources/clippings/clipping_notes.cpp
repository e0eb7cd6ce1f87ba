#include "client/sources/clippings/clipping_notes.h"

#include <algorithm>
#include <utility>

#include "client/sources/clippings/passages.h"

namespace client {
namespace {

std::string rangeText(const std::optional<ClippingRange>& range) {
    return range ? std::to_string(range->first) + '-' + std::to_string(range->last) : "";
}

Identity identityOf(const Clipping& clipping) {
    return {std::to_string(static_cast<int>(clipping.kind.value())),
            rangeText(clipping.location), rangeText(clipping.page),
            std::to_string(clipping.note.time)};
}

std::int64_t position(const Clipping& clipping) {
    const auto& range = clipping.location ? clipping.location : clipping.page;
    return range ? range->first : 0;
}

std::vector<std::size_t> remainingByPosition(const std::vector<Clipping>& clippings) {
    std::vector<std::size_t> indices;
    for (std::size_t i = 0; i < clippings.size(); ++i) {
        if (!clippings[i].isDropped) {
            indices.push_back(i);
        }
    }
    std::stable_sort(indices.begin(), indices.end(), [&](std::size_t a, std::size_t b) {
        return position(clippings[a]) < position(clippings[b]);
    });
    return indices;
}

void shelve(ShelvedBook& book, std::vector<Clipping> clippings) {
    dropSuperseded(clippings);
    attachNotes(clippings);
    for (const std::size_t index : remainingByPosition(clippings)) {
        Clipping& clipping = clippings[index];
        const Identity identity = identityOf(clippings[clipping.origin]);
        if (clipping.page) {
            clipping.note.page = static_cast<double>(clipping.page->first);
        }
        book.add(std::move(clipping.note), identity);
    }
}

}  // namespace

void ClippingNotes::add(Clipping clipping) {
    ShelvedBook& book = shelf_.book(clipping.title, clipping.author);
    clippings_[&book].push_back(std::move(clipping));
}

std::vector<IncomingBook> ClippingNotes::take() {
    for (auto& [book, clippings] : clippings_) {
        shelve(*book, std::move(clippings));
    }
    clippings_.clear();
    return shelf_.take();
}

}  // namespace client
