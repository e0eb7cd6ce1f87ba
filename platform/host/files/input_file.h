// A file that is read from its start to its end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace host {

// Not a standard stream, because a global locale may convert the bytes of those. Every
// failure is a std::runtime_error with the file's path and the system's message.
class InputFile {
public:
    // Opens a regular file. Throws at once for a directory, a FIFO or a device.
    explicit InputFile(const std::string& path);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    // Returns the size in bytes when the file was opened.
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
