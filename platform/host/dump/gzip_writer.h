// A stream that compresses into one gzip member. Equal input gives equal bytes.
#pragma once

#include <zlib.h>

#include <cstddef>
#include <memory>
#include <string>

namespace host {

// An output stream for RapidJSON, which names its members. Throws std::runtime_error if the
// input exceeds the limit, and std::bad_alloc.
class GzipWriter {
public:
    using Ch = char;

    // Appends to `out`. Accepts at most `limit` bytes of input.
    GzipWriter(std::string& out, std::size_t limit);
    ~GzipWriter();
    GzipWriter(const GzipWriter&) = delete;
    GzipWriter& operator=(const GzipWriter&) = delete;

    void Put(char c) {
        if (used_ == kBlockSize) {
            compress(Z_NO_FLUSH);
        }
        input_[used_++] = c;
    }
    void Flush() {}

    // Stops searching for repetitions: Base64 of a picture then compresses three times as
    // fast, and to the same size.
    void beginIncompressible() { setStrategy(Z_HUFFMAN_ONLY); }
    void endIncompressible() { setStrategy(Z_DEFAULT_STRATEGY); }

    // Ends the member. Nothing may follow.
    void finish() { compress(Z_FINISH); }

private:
    static constexpr std::size_t kBlockSize = 65536;

    void compress(int flush);
    void setStrategy(int strategy);
    template <class Step>
    int append(Step step);

    std::string& out_;
    const std::size_t limit_;
    z_stream stream_ = {};
    gz_header header_ = {};
    std::size_t used_ = 0;
    // On the heap: a caller's thread may have a small stack.
    std::unique_ptr<char[]> input_{new char[kBlockSize]};
    std::unique_ptr<char[]> output_{new char[kBlockSize]};
};

}  // namespace host
