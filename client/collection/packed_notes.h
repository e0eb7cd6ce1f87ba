// A sequence of notes that takes little more memory than their texts.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "client/collection/note.h"

namespace client {

class PackedNotes {
public:
    class Iterator {
    public:
        Iterator(const PackedNotes& notes, std::size_t block)
            : notes_(&notes), block_(block) {}

        Note operator*() const;
        Iterator& operator++();
        bool operator!=(const Iterator& other) const {
            return block_ != other.block_ || offset_ != other.offset_;
        }

    private:
        const PackedNotes* notes_;
        std::size_t block_;
        std::size_t offset_ = 0;
    };

    // A note without a known place gets its number in the sequence as its order.
    void add(Note note);

    bool isEmpty() const { return blocks_.empty(); }
    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, blocks_.size()}; }

private:
    std::size_t count_ = 0;
    std::vector<std::string> blocks_;  // a string for each note would take a third more
};

}  // namespace client
