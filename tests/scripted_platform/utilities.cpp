#include <openssl/evp.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "fast_book_hash.h"
#include "oa_buildpath.h"
#include "script.h"
#include "system/filesystem.h"
#include "utilities/serialization_utils.h"

using scripted::recordCall;
using scripted::script;

int FastBookHash(const char* path, char* buffer, int size) {
    recordCall("FastBookHash", path, size);
    // Fills the rest of the buffer, so that a read past the hash is detected.
    std::fill_n(buffer, size, '#');
    script().hashText.copy(buffer, static_cast<std::size_t>(size));
    const auto length = static_cast<int>(script().hashText.size());
    return script().hashResult.value_or(std::ifstream(path) ? length : 0);
}

int oa_buildpath(const char* path) {
    recordCall("oa_buildpath", path);
    const auto directory = std::filesystem::absolute(path).parent_path();
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    return std::filesystem::is_directory(directory, error) ? 0 : -1;
}

namespace veloran::system::filesystem {

bool IsFileExist(const std::string& path) {
    recordCall("IsFileExist", path);
    std::error_code error;
    const bool looksUp = path.find('\0') == std::string::npos;
    const auto status = std::filesystem::symlink_status(looksUp ? path : "", error);
    return script().existing.count(path) > 0 || std::filesystem::exists(status) ||
           error == std::errc::value_too_large;
}

std::string GetFileNameFromPath(const std::string& path) {
    recordCall("GetFileNameFromPath", path);
    return path.substr(path.rfind('/') + 1);
}

}  // namespace veloran::system::filesystem

namespace veloran::utilities {

std::string SerializationUtils::FromHex(const std::string& hex) {
    recordCall("SerializationUtils::FromHex", hex);
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        bytes += static_cast<char>(std::strtol(hex.substr(i, 2).c_str(), nullptr, 16));
    }
    return bytes;
}

std::string SerializationUtils::ToBase64(const std::string& bytes) {
    recordCall("SerializationUtils::ToBase64", std::to_string(bytes.size()) + " bytes");
    std::string text((bytes.size() + 2) / 3 * 4, '\0');
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                    reinterpret_cast<const unsigned char*>(bytes.data()),
                    static_cast<int>(bytes.size()));
    return script().base64.value_or(text);
}

}  // namespace veloran::utilities
