// A stream of what a gzip member holds.
#pragma once

#include <zlib.h>

#include <cstddef>
#include <string>
#include <vector>

#include "dump/payload.h"

namespace host {

// An input stream for RapidJSON, hence the capitals. Reading throws DumpError
// (kDumpDamaged) for a member that is cut, altered or followed by anything, and for one
// that holds more than the limit; std::bad_alloc when memory runs out.
class GunzipStream {
public:
    using Ch = char;

    GunzipStream(Payload payload, std::size_t limit);
    ~GunzipStream();
    GunzipStream(const GunzipStream&) = delete;
    GunzipStream& operator=(const GunzipStream&) = delete;

    // A zero byte stands for the end, like a zero byte in the text: atEnd() tells them
    // apart.
    char Peek() { return next_ != end_ || refill() ? *next_ : '\0'; }
    char Take() { return next_ != end_ || refill() ? *next_++ : '\0'; }
    std::size_t Tell() const {
        return stream_.total_out - static_cast<std::size_t>(end_ - next_);
    }

    // Whether everything was read and the member's checksum and length were found right.
    bool atEnd() { return next_ == end_ && !refill(); }

    // RapidJSON asks for these, and uses them only to parse in place.
    static char* PutBegin() { return nullptr; }
    static void Put(char /*c*/) {}
    static std::size_t PutEnd(char* /*begin*/) { return 0; }

private:
    bool refill();
    void inflateMore();
    void nextPiece();

    Payload payload_;
    const std::size_t limit_;
    std::string piece_;
    z_stream stream_ = {};
    bool ended_ = false;
    const char* next_ = nullptr;
    const char* end_ = nullptr;
    std::vector<char> output_ = std::vector<char>(65536);
};

}  // namespace host
