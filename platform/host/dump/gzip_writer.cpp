#include "dump/gzip_writer.h"

#include <new>
#include <stdexcept>

namespace host {
namespace {

constexpr int kLevel = 1;
constexpr int kGzipFraming = 16;
constexpr int kMemoryLevel = 8;
constexpr int kUnknownSystem = 255;  // the same bytes on every system

}  // namespace

GzipWriter::GzipWriter(std::string& out, std::size_t limit) : out_(out), limit_(limit) {
    if (deflateInit2(&stream_, kLevel, Z_DEFLATED, MAX_WBITS + kGzipFraming, kMemoryLevel,
                     Z_DEFAULT_STRATEGY) != Z_OK) {
        throw std::bad_alloc();
    }
    header_.os = kUnknownSystem;
    deflateSetHeader(&stream_, &header_);
}

GzipWriter::~GzipWriter() { deflateEnd(&stream_); }

void GzipWriter::compress(int flush) {
    if (stream_.total_in + used_ > limit_) {
        throw std::runtime_error("the dump would hold more than " + std::to_string(limit_) +
                                 " bytes of JSON");
    }
    stream_.next_in = reinterpret_cast<Bytef*>(input_.get());
    stream_.avail_in = static_cast<uInt>(used_);
    do {
        append([&] { return deflate(&stream_, flush); });
    } while (stream_.avail_out == 0);
    used_ = 0;
}

void GzipWriter::setStrategy(int strategy) {
    compress(Z_NO_FLUSH);
    // Z_BUF_ERROR: the output block was full.
    while (append([&] { return deflateParams(&stream_, kLevel, strategy); }) ==
           Z_BUF_ERROR) {
    }
}

template <class Step>
int GzipWriter::append(Step step) {
    stream_.next_out = reinterpret_cast<Bytef*>(output_.get());
    stream_.avail_out = static_cast<uInt>(kBlockSize);
    const int status = step();
    out_.append(output_.get(), kBlockSize - stream_.avail_out);
    return status;
}

}  // namespace host
