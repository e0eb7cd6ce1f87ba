// The output file of an export: it holds a prefix of the document, never one with a hole.
#pragma once

#include <fstream>
#include <memory>
#include <ostream>
#include <string>

namespace veloran {

// A file buffer that writes nothing more once a write has failed. A plain filebuf keeps
// what it could not write and tries again when it is closed: were there room again by
// then, the file would go on behind a gap.
class FailStopFilebuf : public std::filebuf {
public:
    FailStopFilebuf() { pubsetbuf(bytes_.get(), kBufferSize); }
    ~FailStopFilebuf() override { close(); }

protected:
    int_type overflow(int_type byte) override;
    std::streamsize xsputn(const char* bytes, std::streamsize count) override;

private:
    bool failed_ = false;
    // The system takes large blocks with a third less work than small ones.
    static constexpr std::streamsize kBufferSize = 256 << 10;
    std::unique_ptr<char[]> bytes_{new char[kBufferSize]};
};

// A stream that creates or truncates a file. When that fails, the stream is a failed one.
class FailStopFile : public std::ostream {
public:
    explicit FailStopFile(const std::string& path);

    // A failure to close sets the stream's failure flag.
    void close();

private:
    FailStopFilebuf buffer_;
};

}  // namespace veloran
