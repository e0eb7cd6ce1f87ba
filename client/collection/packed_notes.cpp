#include "client/collection/packed_notes.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace client {
namespace {

constexpr std::string Note::*kTexts[] = {&Note::uuid, &Note::color, &Note::text,
                                         &Note::comment, &Note::picture};

// Precedes the note's texts.
struct Header {
    double page;
    std::int64_t time;
    std::int64_t commentTime;
    std::int64_t changeTime;
    std::array<std::uint32_t, std::size(kTexts)> sizes;  // a text fits into a database
    bool hasPage;
};

Header headerOf(const Note& note) {
    Header header{note.page.value_or(0), note.time, note.commentTime,
                  note.changeTime,       {},        note.page.has_value()};
    auto* size = header.sizes.data();
    for (const auto text : kTexts) {
        *size++ = static_cast<std::uint32_t>((note.*text).size());
    }
    return header;
}

Header headerAt(const std::string& block, std::size_t offset) {
    Header header;
    std::memcpy(&header, &block[offset], sizeof header);
    return header;
}

}  // namespace

void PackedNotes::add(const Note& note) {
    constexpr std::size_t kBlock = 65536;
    const Header header = headerOf(note);
    if (blocks_.empty() || blocks_.back().size() >= kBlock) {
        blocks_.emplace_back();
    }
    std::string& block = blocks_.back();
    block.append(reinterpret_cast<const char*>(&header), sizeof header);
    for (const auto text : kTexts) {
        block.append(note.*text);
    }
}

Note PackedNotes::Iterator::operator*() const {
    const std::string& block = notes_->blocks_[block_];
    const Header header = headerAt(block, offset_);
    Note note;
    if (header.hasPage) {
        note.page = header.page;
    }
    note.time = header.time;
    note.commentTime = header.commentTime;
    note.changeTime = header.changeTime;
    std::size_t offset = offset_ + sizeof header;
    const auto* size = header.sizes.data();
    for (const auto text : kTexts) {
        (note.*text).assign(block, offset, *size);
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
