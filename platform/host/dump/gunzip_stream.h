// A stream that decompresses one gzip member.
#pragma once

#include <zlib.h>

#include <cstddef>
#include <string>
#include <vector>

#include "dump/payload.h"

namespace host {

// An input stream for RapidJSON, which names its members. Reading throws DumpError
// (kDumpDamaged) if the member is cut, altered, followed by other bytes or larger than the
// limit, and std::bad_alloc.
class GunzipStream {
public:
    using Ch = char;

    GunzipStream(Payload payload, std::size_t limit);
    ~GunzipStream();
    GunzipStream(const GunzipStream&) = delete;
    GunzipStream& operator=(const GunzipStream&) = delete;

    // Both return a zero byte at the end; atEnd() distinguishes it from one in the text.
    char Peek() { return next_ != end_ || refill() ? *next_ : '\0'; }
    char Take() { return next_ != end_ || refill() ? *next_++ : '\0'; }
    std::size_t Tell() const {
        return stream_.total_out - static_cast<std::size_t>(end_ - next_);
    }

    // Returns true if everything was read, and checksum and length are correct.
    bool atEnd() { return next_ == end_ && !refill(); }

    // RapidJSON requires these, but calls them only to parse in place.
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
