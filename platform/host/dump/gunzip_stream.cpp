#include "dump/gunzip_stream.h"

#include <new>
#include <utility>

#include "dump/import_result.h"

namespace host {
namespace {

constexpr int kGzipFraming = 16;

[[noreturn]] void damaged(const char* what) { throw DumpError(kDumpDamaged, what); }

}  // namespace

GunzipStream::GunzipStream(Payload payload, std::size_t limit)
    : payload_(std::move(payload)), limit_(limit) {
    if (inflateInit2(&stream_, MAX_WBITS + kGzipFraming) != Z_OK) {
        throw std::bad_alloc();
    }
}

GunzipStream::~GunzipStream() { inflateEnd(&stream_); }

bool GunzipStream::refill() {
    stream_.next_out = reinterpret_cast<Bytef*>(output_.data());
    stream_.avail_out = static_cast<uInt>(output_.size());
    while (stream_.avail_out == output_.size() && !ended_) {
        inflateMore();
    }
    if (stream_.total_out > limit_) {
        damaged("its dump is larger than any that is written");
    }
    next_ = output_.data();
    end_ = next_ + (output_.size() - stream_.avail_out);
    return next_ != end_;
}

void GunzipStream::inflateMore() {
    if (stream_.avail_in == 0) {
        nextPiece();
    }
    const int status = inflate(&stream_, Z_NO_FLUSH);
    if (status == Z_MEM_ERROR) {
        throw std::bad_alloc();
    }
    ended_ = status == Z_STREAM_END;
    if (ended_ && (stream_.avail_in > 0 || !payload_.empty())) {
        damaged("something follows the records in its dump");
    }
    if (!ended_ && status != Z_OK) {
        damaged("its dump was changed or is not compressed");
    }
}

void GunzipStream::nextPiece() {
    if (payload_.empty()) {
        damaged("its dump is cut");
    }
    piece_ = std::move(payload_.front());
    payload_.pop_front();
    stream_.next_in = reinterpret_cast<Bytef*>(piece_.data());
    stream_.avail_in = static_cast<uInt>(piece_.size());
}

}  // namespace host
