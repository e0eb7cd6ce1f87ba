#include "client/sources/clippings/clipping_notes.h"

#include <optional>
#include <string>
#include <utility>

namespace client {
namespace {

std::string rangeText(const std::optional<ClippingRange>& range) {
    return range ? std::to_string(range->first) + '-' + std::to_string(range->last) : "";
}

Identity identityOf(const Clipping& clipping) {
    return {std::to_string(static_cast<int>(clipping.kind.value())),
            rangeText(clipping.location), rangeText(clipping.page),
            std::to_string(clipping.identityTime)};
}

}  // namespace

// The bytes of the file make the hash, so that it is the same however they are decoded.
// Most records are of the same book as the one before.
ShelvedBook& ClippingNotes::bookOf(const Clipping& clipping) {
    const std::vector<std::string> names = {clipping.title, clipping.author,
                                            clipping.rawTitle, clipping.rawAuthor};
    if (lastBook_ == nullptr || names != lastNames_) {
        const bool isRaw = !clipping.rawTitle.empty();
        const std::string hash =
            derivedBookHash(names[isRaw ? 2 : 0], names[isRaw ? 3 : 1]);
        lastBook_ = &shelf_.book({hash, clipping.title, clipping.author, ""}, true);
        lastNames_ = names;
    }
    return *lastBook_;
}

void ClippingNotes::add(Clipping clipping) {
    ShelvedBook& book = bookOf(clipping);
    Note& note = clipping.note;
    if (clipping.kind == ClippingKind::Note) {
        note.comment = std::exchange(note.text, {});
    }
    if (clipping.page) {
        note.place.page = static_cast<double>(clipping.page->first);
    }
    if (book.identify(note, identityOf(clipping))) {
        passages_[&book].add(std::move(clipping));
    }
}

std::vector<IncomingBook> ClippingNotes::take() {
    for (auto& [book, passages] : passages_) {
        IncomingBook& content = book->finish();
        content.onKnownNote = OnKnownNote::ReplaceOwn;
        std::exchange(passages, {}).moveTo(content);
    }
    passages_.clear();  // its keys are books of the shelf
    lastBook_ = nullptr;
    return shelf_.take();
}

}  // namespace client
