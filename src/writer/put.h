// Output of texts to a stream.
#pragma once

#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string_view>

namespace markup {

// Access to the protected put area of a stream buffer.
struct PutArea : std::streambuf {
    static char* begin(const std::streambuf& buffer) { return (buffer.*&PutArea::pptr)(); }
    static char* end(const std::streambuf& buffer) { return (buffer.*&PutArea::epptr)(); }
    static void advance(std::streambuf& buffer, std::size_t size) {
        (buffer.*&PutArea::pbump)(static_cast<int>(size));
    }
};

// Copies short texts directly into the buffer, which is faster than one call of the stream
// for each. Returns false, and copies nothing, if they do not fit or are long.
template <class... Texts>
inline bool putIntoBuffer(std::streambuf& buffer, Texts... texts) {
    constexpr std::size_t kLongest = 4096;
    char* area = PutArea::begin(buffer);
    const auto room = static_cast<std::size_t>(PutArea::end(buffer) - area);
    const std::size_t size = (texts.size() + ...);
    if (size > room || size > kLongest) {
        return false;
    }
    ((area += texts.copy(area, texts.size())), ...);
    PutArea::advance(buffer, size);
    return true;
}

inline void putThroughStream(std::ostream& stream, std::string_view text) {
    const auto size = static_cast<std::streamsize>(text.size());
    if (stream.good() && stream.rdbuf()->sputn(text.data(), size) != size) {
        stream.setstate(std::ios::badbit);
    }
}

// Writes the texts unformatted, so that no locale or field width changes a byte. Writes
// nothing to a stream that has failed.
template <class... Texts>
inline void put(std::ostream& stream, const Texts&... texts) {
    if (stream.good() && !putIntoBuffer(*stream.rdbuf(), std::string_view(texts)...)) {
        (putThroughStream(stream, texts), ...);
    }
}

}  // namespace markup
