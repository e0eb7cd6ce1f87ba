// Where a contestant gets the notes that it writes.
#pragma once

#include <cstddef>

#include "sample_notes.h"

class NoteSource {
public:
    explicit NoteSource(std::size_t count) : count_(count) {}
    virtual ~NoteSource() = default;
    NoteSource(const NoteSource&) = delete;
    NoteSource& operator=(const NoteSource&) = delete;

    std::size_t count() const { return count_; }

    // The note at this place, until the next one is asked for.
    virtual const SampleNote& at(std::size_t place) = 0;

private:
    std::size_t count_;
};

// Notes that are ready to be written.
class ReadyNotes : public NoteSource {
public:
    using NoteSource::NoteSource;
    const SampleNote& at(std::size_t place) override {
        return sampleNotes()[place % sampleNotes().size()];
    }
};
