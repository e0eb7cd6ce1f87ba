// The notes that every benchmark works on.
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

// A few notes, which a book of any size repeats: 300 bytes of mixed text with six markup
// characters, every second one with a comment. Rendered they take 560 bytes each. They are
// few so that they stay in the processor's cache: fetching notes is the platform's work.
const std::vector<SampleNote>& sampleNotes();

// A text of about 300 bytes that is another one for each place, in a hundred words: what is
// to be compressed must not repeat itself more than notes do.
std::string sampleText(std::size_t place);

// The position of the note with this place in the book, as a URI that names its page. The
// notes were made in page order, but for every tenth.
std::string samplePosition(std::size_t place);

// `bytes` of noise, as pictures are.
std::string samplePicture(std::size_t bytes);

// A comment of `bytes` bytes, every tenth of them a line break.
std::string sampleLongComment(std::size_t bytes);
