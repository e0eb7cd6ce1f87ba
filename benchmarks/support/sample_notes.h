// The notes of every benchmark.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

struct SampleNote {
    std::string uuid;
    std::string color;
    std::string page;
    std::string text;
    std::string comment;
    std::string picture = {};
};

// Returns a few notes, which a book of any size repeats: 300 bytes of mixed text with six
// markup characters, every second one with a comment. Rendered they take 560 bytes each.
// They are few so that they stay in the processor's cache, because fetching notes is the
// platform's work.
const std::vector<SampleNote>& sampleNotes();

// Returns a text of about 300 bytes that differs for each index, so that a dump compresses
// no better than one of real notes.
std::string sampleText(std::size_t index);

// Returns the position of the note with this index in the book, as a URI that names its
// page. The notes are in page order, except every tenth.
std::string samplePosition(std::size_t index);

// Returns `bytes` random bytes, which do not compress, like a picture.
std::string samplePicture(std::size_t bytes);

// Returns a comment of `bytes` bytes, a tenth of them line breaks.
std::string sampleLongComment(std::size_t bytes);
