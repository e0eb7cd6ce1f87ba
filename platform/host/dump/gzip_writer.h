// A stream that compresses into one gzip member. Equal input gives equal bytes.
#pragma once

#include <zlib.h>

#include <cstddef>
#include <memory>
#include <string>

namespace host {

// An output stream for RapidJSON, hence the capitals. Throws std::runtime_error for input
// that exceeds the limit, std::bad_alloc when memory runs out.
class GzipWriter {
public:
    using Ch = char;

    // Appends to `out`. At most `limit` bytes of input.
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

    // Announces that what follows has no repetitions worth looking for: Base64 of a picture
    // compresses three times as fast then, and no worse.
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
