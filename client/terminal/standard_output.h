// Standard output, which keeps the cause of its first failed write.
#pragma once

#include <streambuf>

namespace client {

// While it lives, std::cout writes through it. A command goes on after a failed write, and
// what it does then changes errno.
class StandardOutput : public std::streambuf {
public:
    StandardOutput();
    ~StandardOutput() override;
    StandardOutput(const StandardOutput&) = delete;
    StandardOutput& operator=(const StandardOutput&) = delete;

    // Throws UserError, which names the cause, if not everything could be written.
    void requireWritten();

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;
    int sync() override;

private:
    void keepCause(bool isWritten);

    std::streambuf* const target_;
    int error_ = 0;
};

}  // namespace client
