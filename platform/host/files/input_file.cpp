#include "files/input_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace host {

InputFile::InputFile(const std::string& path)
    // Without O_NONBLOCK, opening a FIFO waits for a writer.
    : path_(path),
      descriptor_(open(path.c_str(), O_RDONLY | O_LARGEFILE | O_NONBLOCK | O_CLOEXEC)) {
    if (descriptor_ < 0) {
        fail(errno);
    }
    // Not fstat, which fails for a file dated after 2038 if times have 32 bits.
    struct statx status = {};
    const bool known =
        statx(descriptor_, "", AT_EMPTY_PATH, STATX_TYPE | STATX_SIZE, &status) == 0;
    if (known && S_ISREG(status.stx_mode)) {
        size_ = status.stx_size;
        return;
    }
    const int error = known ? EISDIR : errno;
    close(descriptor_);
    if (known && !S_ISDIR(status.stx_mode)) {
        throw std::runtime_error(path_ + ": Not a regular file");
    }
    fail(error);
}

InputFile::~InputFile() { close(descriptor_); }

std::size_t InputFile::read(char* buffer, std::size_t capacity) {
    ssize_t count = 0;
    do {
        count = ::read(descriptor_, buffer, capacity);
    } while (count < 0 && errno == EINTR);
    return count < 0 ? (fail(errno), 0) : static_cast<std::size_t>(count);
}

void InputFile::fail(int error) const {
    throw std::runtime_error(path_ + ": " + std::generic_category().message(error));
}

}  // namespace host
