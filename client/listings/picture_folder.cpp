#include "client/listings/picture_folder.h"

#include <xxhash.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <system_error>

#include "client/files/whole_file.h"
#include "client/text/control_characters.h"
#include "client/text/percent_encoding.h"

namespace client {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMaxTitle = 100;  // bytes: a name has at most 255

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

// Returns at most the first `size` bytes, without a partial character at the end.
std::string firstOf(const std::string& text, std::size_t size) {
    while (size < text.size() && size > 0 && (text[size] & 0xC0) == 0x80) {
        --size;
    }
    return text.substr(0, size);
}

// Returns a name that is valid on every file system, and is neither a hidden file nor an
// option.
std::string safeName(const std::string& title) {
    std::string name;
    for (const char letter : firstOf(oneLine(title), kMaxTitle)) {
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

}  // namespace

std::string addPicture(const std::string& picture, const std::string& title,
                       const FolderForPictures& folder) {
    if (folder.path.empty() || picture.empty()) {
        return {};
    }
    makeFolders(folder.path);
    const std::string stem = stemOf(title, picture);
    std::string name = stem + extensionOf(picture);
    for (int counter = 1; !writeNewFile(fs::path(folder.path) / name, picture) &&
                          !holds(fs::path(folder.path) / name, picture);
         ++counter) {
        name = stem + " (" + std::to_string(counter) + ')' + extensionOf(picture);
    }
    return linkTo((fs::path(folder.linked) / name).string());
}

}  // namespace client
