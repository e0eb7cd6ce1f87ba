// How the writer's texts reach their stream.
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

// Copies a short text directly, as sputc does with one byte: the stream would spend more on
// each call than on the text. Returns false when the text does not fit, or is long.
inline bool putIntoBuffer(std::streambuf& buffer, std::string_view text) {
    constexpr std::size_t kLongest = 4096;
    char* const area = PutArea::begin(buffer);
    const auto size = static_cast<std::size_t>(PutArea::end(buffer) - area);
    if (text.size() > size || text.size() > kLongest) {
        return false;
    }
    text.copy(area, text.size());
    PutArea::advance(buffer, text.size());
    return true;
}

// Unformatted output: neither a locale nor a field width of the stream can change a byte,
// and a stream that has failed passes nothing on.
inline void put(std::ostream& stream, std::string_view text) {
    if (!stream.good() || putIntoBuffer(*stream.rdbuf(), text)) {
        return;
    }
    const auto size = static_cast<std::streamsize>(text.size());
    if (stream.rdbuf()->sputn(text.data(), size) != size) {
        stream.setstate(std::ios::badbit);
    }
}

}  // namespace markup
