#include "client/collection/packed_notes.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <tuple>
#include <utility>

#include "client/collection/position.h"

namespace client {
namespace {

template <class AnyNote>
auto textsOf(AnyNote& note) {
    return std::array{&note.uuid, &note.place.chapter, &note.place.order, &note.color,
                      &note.text, &note.comment,       &note.picture};
}

// Precedes the note's texts.
struct Header {
    double page;
    std::int64_t location;
    std::int64_t time;
    std::int64_t commentTime;
    std::int64_t changeTime;
    std::array<std::uint32_t, std::tuple_size_v<decltype(textsOf(std::declval<Note&>()))>>
        sizes;  // a text fits into a database
    bool hasPage;
    bool hasLocation;
};

Header headerOf(const Note& note) {
    const Place& place = note.place;
    Header header{place.page.value_or(0),
                  place.location.value_or(0),
                  note.time,
                  note.commentTime,
                  note.changeTime,
                  {},
                  place.page.has_value(),
                  place.location.has_value()};
    auto* size = header.sizes.data();
    for (const std::string* text : textsOf(note)) {
        *size++ = static_cast<std::uint32_t>(text->size());
    }
    return header;
}

Header headerAt(const std::string& block, std::size_t offset) {
    Header header;
    std::memcpy(&header, &block[offset], sizeof header);
    return header;
}

}  // namespace

void PackedNotes::add(Note note) {
    constexpr std::size_t kBlock = 65536;
    if (!isKnown(note.place)) {
        note.place.order = rankOrder(count_);
    }
    ++count_;
    const Header header = headerOf(note);
    if (blocks_.empty() || blocks_.back().size() >= kBlock) {
        blocks_.emplace_back();
    }
    std::string& block = blocks_.back();
    block.append(reinterpret_cast<const char*>(&header), sizeof header);
    for (const std::string* text : textsOf(note)) {
        block.append(*text);
    }
}

Note PackedNotes::Iterator::operator*() const {
    const std::string& block = notes_->blocks_[block_];
    const Header header = headerAt(block, offset_);
    Note note;
    if (header.hasPage) {
        note.place.page = header.page;
    }
    if (header.hasLocation) {
        note.place.location = header.location;
    }
    note.time = header.time;
    note.commentTime = header.commentTime;
    note.changeTime = header.changeTime;
    std::size_t offset = offset_ + sizeof header;
    const auto* size = header.sizes.data();
    for (std::string* text : textsOf(note)) {
        text->assign(block, offset, *size);
        offset += *size++;
    }
    return note;
}

PackedNotes::Iterator& PackedNotes::Iterator::operator++() {
    const std::string& block = notes_->blocks_[block_];
    const Header header = headerAt(block, offset_);
    offset_ += sizeof header;
    for (const std::uint32_t size : header.sizes) {
        offset_ += size;
    }
    if (offset_ == block.size()) {
        ++block_;
        offset_ = 0;
    }
    return *this;
}

}  // namespace client
