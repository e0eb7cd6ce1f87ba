#include <openssl/evp.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <vector>

#include "fast_book_hash.h"
#include "oa_buildpath.h"
#include "system/filesystem.h"
#include "utilities/serialization_utils.h"

namespace fs = std::filesystem;

// FNV-1a of the size and of the first bytes: fast, but not secure.
int FastBookHash(const char* path, char* buffer, int size) {
    constexpr int kLength = 16;
    constexpr std::uint64_t kPrime = 0x100000001b3;
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file || size < kLength) {
        return 0;
    }
    std::uint64_t hash = 0xcbf29ce484222325 ^ static_cast<std::uint64_t>(file.tellg());
    std::vector<char> start(4096);
    file.seekg(0).read(start.data(), static_cast<std::streamsize>(start.size()));
    for (std::streamsize i = 0; i < file.gcount(); ++i) {
        const char byte = start[static_cast<std::size_t>(i)];
        hash = (hash ^ static_cast<unsigned char>(byte)) * kPrime;
    }
    std::generate_n(buffer, kLength, [&hash] {
        const char digit = "0123456789abcdef"[hash & 15U];
        hash >>= 4U;
        return digit;
    });
    return kLength;
}

int oa_buildpath(const char* path) {
    std::error_code failure;
    const fs::path directory = fs::absolute(path, failure).parent_path();
    fs::create_directories(directory, failure);
    return fs::is_directory(directory, failure) ? 0 : -1;
}

namespace veloran::system::filesystem {

bool IsFileExist(const std::string& path) {
    if (path.find('\0') != std::string::npos) {
        return false;  // the system would look up the part before it
    }
    std::error_code failure;
    const auto status = fs::symlink_status(path, failure);
    // The status of a file dated after 2038 does not fit into times of 32 bits.
    return fs::exists(status) || failure == std::errc::value_too_large;
}

std::string GetFileNameFromPath(const std::string& path) {
    return path.substr(path.rfind('/') + 1);  // npos + 1 is 0: the whole path
}

}  // namespace veloran::system::filesystem

namespace veloran::utilities {

std::string SerializationUtils::FromHex(const std::string& hex) {
    std::string bytes;
    for (std::size_t digit = 0; digit + 2 <= hex.size(); digit += 2) {
        unsigned char byte = 0;
        std::from_chars(hex.data() + digit, hex.data() + digit + 2, byte, 16);
        bytes.push_back(static_cast<char>(byte));
    }
    return bytes;
}

// Encodes in pieces, because OpenSSL takes sizes as int.
std::string SerializationUtils::ToBase64(const std::string& bytes) {
    constexpr std::size_t kPiece = std::size_t{3} << 20;
    std::string text((bytes.size() + 2) / 3 * 4, '\0');
    for (std::size_t at = 0; at < bytes.size(); at += kPiece) {
        const auto size = static_cast<int>(std::min(kPiece, bytes.size() - at));
        EVP_EncodeBlock(reinterpret_cast<unsigned char*>(&text[at / 3 * 4]),
                        reinterpret_cast<const unsigned char*>(&bytes[at]), size);
    }
    return text;
}

}  // namespace veloran::utilities
