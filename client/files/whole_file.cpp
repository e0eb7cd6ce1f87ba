#include "client/files/whole_file.h"

#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <stdexcept>
#include <system_error>
#include <vector>

#include "client/error.h"
#include "client/files/move_into_place.h"
#include "client/files/signals.h"
#include "files/input_file.h"
#include "store/records.h"

namespace client {

namespace fs = std::filesystem;

namespace {

void checkSize(const fs::path& path, std::uint64_t size) {
    if (size > host::kMaxValueSize) {
        throw std::runtime_error(
            path.string() + ": its " + std::to_string(size) + " bytes are more than the " +
            std::to_string(host::kMaxValueSize) + " that a database takes");
    }
}

std::string contentOf(const fs::path& path) {
    host::InputFile file(path.string());
    checkSize(path, file.size());
    std::string content;
    content.reserve(static_cast<std::size_t>(file.size()));
    std::vector<char> block(65536);
    while (const std::size_t size = file.read(block.data(), block.size())) {
        content.append(block.data(), size);
        checkSize(path, content.size());  // it may grow meanwhile
    }
    return content;
}

std::string startOf(const fs::path& path, std::size_t size) {
    host::InputFile file(path.string());
    std::string content(size, '\0');
    std::size_t length = 0;
    while (const std::size_t part = file.read(&content[length], size - length)) {
        length += part;
    }
    content.resize(length);
    return content;
}

template <class Read>
std::string withUserError(const Read& read) {
    try {
        return read();
    } catch (const std::runtime_error& error) {
        throw UserError(std::string("Cannot read ") + error.what());
    }
}

[[noreturn]] void throwNotWritten(const fs::path& path) {
    throw UserError("Cannot write " + path.string(), {errno, std::generic_category()});
}

// A new file beside the one that it becomes. Its destructor removes it if it is still
// there.
class Part {
public:
    Part(const fs::path& path, const std::string& content)
        : path_(path.string() + '.' + std::to_string(getpid()) + ".part") {
        std::FILE* file = std::fopen(path_.c_str(), "wbx");  // follows no link
        isMade_ = file != nullptr;
        const bool isWhole = isMade_ && std::fwrite(content.data(), 1, content.size(),
                                                    file) == content.size();
        if (!isMade_ || std::fclose(file) != 0 || !isWhole) {
            remove();
            throwNotWritten(path);
        }
    }
    ~Part() { remove(); }
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    const std::string& path() const { return path_; }

private:
    void remove() const {
        const int error = errno;
        static_cast<void>(isMade_ && std::remove(path_.c_str()) == 0);
        errno = error;
    }

    const SignalBlock block_;
    const std::string path_;
    bool isMade_ = false;
};

}  // namespace

std::string readFile(const fs::path& path) {
    return withUserError([&] { return contentOf(path); });
}

std::string readStart(const fs::path& path, std::size_t size) {
    return withUserError([&] { return startOf(path, size); });
}

void writeFile(const fs::path& path, const std::string& content) {
    makeFolders(path.parent_path());
    const Part part(path, content);
    if (std::rename(part.path().c_str(), path.c_str()) != 0) {
        throwNotWritten(path);
    }
}

bool writeNewFile(const fs::path& path, const std::string& content) {
    std::error_code failure;
    return !fs::exists(fs::symlink_status(path, failure)) &&
           moveIntoPlace(Part(path, content).path(), path.string(), path.string());
}

void makeFolders(const fs::path& path) {
    std::error_code error;
    fs::create_directories(path, error);
    if (error) {
        throw UserError("Cannot make the folder " + path.string(), error);
    }
}

}  // namespace client
