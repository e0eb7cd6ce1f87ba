// The output file of an export: always a prefix of the document, without gaps.
#pragma once

#include <fstream>
#include <memory>
#include <ostream>
#include <string>

namespace veloran {

// A file buffer that writes nothing more once a write has failed. A plain filebuf retries
// on close; if space was freed meanwhile, the file has a gap.
class FailStopFilebuf : public std::filebuf {
public:
    FailStopFilebuf() { pubsetbuf(bytes_.get(), kBufferSize); }
    ~FailStopFilebuf() override { close(); }

protected:
    int_type overflow(int_type byte) override;
    std::streamsize xsputn(const char* bytes, std::streamsize count) override;

private:
    bool failed_ = false;
    // Large blocks take a third less time in the system than small ones.
    static constexpr std::streamsize kBufferSize = 256 << 10;
    std::unique_ptr<char[]> bytes_{new char[kBufferSize]};
};

// A stream that creates or truncates a file. If that fails, the stream has failed.
class FailStopFile : public std::ostream {
public:
    explicit FailStopFile(const std::string& path);

    // A failure to close sets the stream's failure flag.
    void close();

private:
    FailStopFilebuf buffer_;
};

}  // namespace veloran
