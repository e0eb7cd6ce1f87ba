#include "client/listings/picture_folder.h"

#include <xxhash.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <system_error>

#include "client/error.h"
#include "client/files/cleanup_on_signal.h"
#include "client/files/whole_file.h"
#include "client/text/one_line.h"
#include "client/text/percent_encoding.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMostOfTitle = 100;  // bytes: a name has at most 255

constexpr std::string_view kForbidden = "<>:\"/\\|?*";

const char* extensionOf(std::string_view picture) {
    return picture.substr(0, 4) == "\x89PNG" ? ".png"
           : picture.substr(0, 4) == "GIF8"  ? ".gif"
                                             : ".jpg";
}

std::string hashOf(const std::string& picture) {
    char digits[16];
    char* end = std::to_chars(digits, std::end(digits),
                              XXH3_64bits(picture.data(), picture.size()), 16)
                    .ptr;
    return {digits, end};
}

// At most the first `size` bytes, without a part of a character at the end.
std::string firstOf(const std::string& text, std::size_t size) {
    while (size < text.size() && size > 0 && (text[size] & 0xC0) == 0x80) {
        --size;
    }
    return text.substr(0, size);
}

// What every file system takes, and no program takes for a hidden file or an option.
std::string safeName(const std::string& title) {
    std::string name;
    for (const char letter : firstOf(oneLine(title), kMostOfTitle)) {
        if (kForbidden.find(letter) == std::string_view::npos) {
            name += letter;
        }
    }
    return name.substr(std::min(name.find_first_not_of(" .-"), name.size()));
}

std::string stemOf(const std::string& title, const std::string& picture) {
    const std::string name = safeName(title);
    return name + (name.empty() ? "" : " ") + hashOf(picture);
}

bool holds(const fs::path& path, const std::string& content) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored) &&
           fs::file_size(path, ignored) == content.size() && readFile(path) == content;
}

// Leaves the reason in errno when it fails.
bool wrote(std::FILE* file, const std::string& content) {
    const bool isWhole =
        std::fwrite(content.data(), 1, content.size(), file) == content.size();
    return std::fclose(file) == 0 && isWhole;
}

// False when there is a file of this name.
bool wroteNew(const fs::path& path, const std::string& content) {
    const SignalsHeld held;  // none leaves a part of a picture
    std::FILE* file = std::fopen(path.c_str(), "wbx");
    if (file != nullptr && wrote(file, content)) {
        return true;
    }
    const std::error_code error(errno, std::generic_category());
    if (file == nullptr && error == std::errc::file_exists) {
        return false;
    }
    if (file != nullptr) {
        static_cast<void>(std::remove(path.c_str()));
    }
    complain("Cannot write " + path.string(), error);
}

}  // namespace

std::string PictureFolder::add(const std::string& title, const std::string& picture) const {
    if (folder_.path.empty() || picture.empty()) {
        return {};
    }
    makeFolders(folder_.path);
    const std::string stem = stemOf(title, picture);
    std::string name = stem + extensionOf(picture);
    for (int counter = 1; !wroteNew(fs::path(folder_.path) / name, picture) &&
                          !holds(fs::path(folder_.path) / name, picture);
         ++counter) {
        name = stem + " (" + std::to_string(counter) + ')' + extensionOf(picture);
    }
    return linkTo((fs::path(folder_.linked) / name).string());
}
