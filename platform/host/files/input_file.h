// A file that is read from its start to its end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace host {

// Not a standard stream: a global locale may convert what those read. Every failure is a
// std::runtime_error that names the file and says what the system said.
class InputFile {
public:
    // Opens a regular file. A directory, a FIFO or a device is refused without waiting.
    explicit InputFile(const std::string& path);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    // In bytes, when it was opened.
    std::uint64_t size() const { return size_; }

    // Reads up to `capacity` bytes, and returns how many: 0 only at the end of the file.
    std::size_t read(char* buffer, std::size_t capacity);

private:
    [[noreturn]] void fail(int error) const;

    std::string path_;
    int descriptor_;
    std::uint64_t size_ = 0;
};

}  // namespace host
