// How the writer's texts reach their stream.
#pragma once

#include <cstddef>
#include <ostream>
#include <streambuf>
#include <string_view>

namespace markup {

// What is protected in every stream buffer: its room for what comes next.
struct PutArea : std::streambuf {
    static char* begin(const std::streambuf& buffer) { return (buffer.*&PutArea::pptr)(); }
    static char* end(const std::streambuf& buffer) { return (buffer.*&PutArea::epptr)(); }
    static void advance(std::streambuf& buffer, std::size_t size) {
        (buffer.*&PutArea::pbump)(static_cast<int>(size));
    }
};

// Most texts of a document are shorter than what the stream would do for each of them: they
// go straight into its buffer, as sputc puts a single byte.
inline bool putIntoRoom(std::streambuf& buffer, std::string_view text) {
    constexpr std::size_t kLongest = 4096;
    char* const room = PutArea::begin(buffer);
    const auto size = static_cast<std::size_t>(PutArea::end(buffer) - room);
    if (text.size() > size || text.size() > kLongest) {
        return false;
    }
    text.copy(room, text.size());
    PutArea::advance(buffer, text.size());
    return true;
}

// Unformatted output: neither a locale nor a field width of the stream can change a byte,
// and a stream that has failed passes nothing on.
inline void put(std::ostream& stream, std::string_view text) {
    if (!stream.good() || putIntoRoom(*stream.rdbuf(), text)) {
        return;
    }
    const auto size = static_cast<std::streamsize>(text.size());
    if (stream.rdbuf()->sputn(text.data(), size) != size) {
        stream.setstate(std::ios::badbit);
    }
}

}  // namespace markup
