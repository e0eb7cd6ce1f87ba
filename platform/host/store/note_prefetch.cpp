#include "store/note_prefetch.h"

#include <utility>

namespace host {
namespace {

constexpr std::size_t kMaxSize = std::size_t{256} << 10;

std::size_t sizeOf(const std::optional<NoteRecord>& note) {
    std::size_t size = sizeof(note);
    if (note) {
        for (const TagRecord& tag : note->tags) {
            size += sizeof(tag) + tag.text.size() + (tag.json ? tag.json->size() : 0);
        }
    }
    return size;
}

}  // namespace

void NotePrefetch::expect(std::vector<std::int64_t> ids) {
    notes_.clear();
    ids_ = std::move(ids);
    next_ = 0;
}

std::optional<NoteRecord> NotePrefetch::take(ReaderStore& store, std::int64_t id) {
    if (next_ == ids_.size() || ids_[next_] != id) {
        return store.note(id);
    }
    if (notes_.empty()) {
        read(store);
    }
    std::optional<NoteRecord> note = std::move(notes_.front());
    notes_.pop_front();
    ++next_;
    return note;
}

void NotePrefetch::read(ReaderStore& store) {
    store.inReadTransaction([&] {
        std::size_t size = 0;
        for (std::size_t index = next_; index < ids_.size() && size < kMaxSize; ++index) {
            size += sizeOf(notes_.emplace_back(store.note(ids_[index])));
        }
    });
}

}  // namespace host
