#include "files.h"

#include <fstream>
#include <iterator>

#include "complaint.h"

namespace {

std::ifstream opened(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file || std::filesystem::is_directory(path)) {
        throw Complaint("Cannot read " + path.string() + ": is it there, and a file?");
    }
    return file;
}

}  // namespace

void complainUnlessReadable(const std::filesystem::path& path) { opened(path); }

std::string readFile(const std::filesystem::path& path) {
    std::ifstream file = opened(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::filesystem::path& path, const std::string& content) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    if (!file) {
        throw Complaint("Cannot write " + path.string() +
                        ": is there room, and may you write there?");
    }
}
