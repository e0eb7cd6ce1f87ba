#include "text/base64.h"

#include <openssl/evp.h>

#include <algorithm>

namespace host {
namespace {

// OpenSSL takes sizes as int. Both are whole groups, of 3 bytes and of 4 characters.
constexpr std::size_t kBytesPerCall = 3 << 16;
constexpr std::size_t kCharactersPerCall = 4 << 16;

unsigned char* writable(std::string& text, std::size_t offset) {
    return reinterpret_cast<unsigned char*>(text.data() + offset);
}

const unsigned char* readable(const char* text) {
    return reinterpret_cast<const unsigned char*>(text);
}

// Decodes whole groups; "=" counts as zero bits.
bool decodeGroups(const char* text, std::size_t size, std::string& bytes) {
    for (std::size_t done = 0; done < size; done += kCharactersPerCall) {
        const int block = static_cast<int>(std::min(kCharactersPerCall, size - done));
        const std::size_t end = bytes.size();
        bytes.resize(end + static_cast<std::size_t>(block) / 4 * 3);
        if (EVP_DecodeBlock(writable(bytes, end), readable(text + done), block) !=
            block / 4 * 3) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::string encodeBase64(const std::string& bytes) {
    std::string text((bytes.size() + 2) / 3 * 4, '\0');
    std::size_t end = 0;
    for (std::size_t done = 0; done < bytes.size(); done += kBytesPerCall) {
        const int block = static_cast<int>(std::min(kBytesPerCall, bytes.size() - done));
        // The zero byte after each block is overwritten by the next block, or is the
        // string's own.
        end += static_cast<std::size_t>(
            EVP_EncodeBlock(writable(text, end), readable(bytes.data() + done), block));
    }
    return text;
}

std::optional<std::string> decodeBase64(std::string_view text) {
    Base64Decoder decoder;
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3);
    if (!decoder.feed(text.data(), text.size(), bytes) || !decoder.finish(bytes)) {
        return std::nullopt;
    }
    return bytes;
}

bool Base64Decoder::feed(const char* text, std::size_t size, std::string& bytes) {
    const std::size_t before = pending_.size();
    pending_.resize(before + size);
    const char* const end = std::remove_copy_if(
        text, text + size, pending_.data() + before,
        [](char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; });
    pending_.resize(static_cast<std::size_t>(end - pending_.data()));
    const std::size_t groups = pending_.empty() ? 0 : (pending_.size() - 1) / 4 * 4;
    if (std::string_view(pending_).substr(0, groups).find('=') != std::string_view::npos) {
        return false;
    }
    const bool decoded = decodeGroups(pending_.data(), groups, bytes);
    pending_.erase(0, groups);
    return decoded;
}

bool Base64Decoder::finish(std::string& bytes) {
    if (pending_.empty()) {
        return true;
    }
    const std::size_t digits = std::min(pending_.find('='), pending_.size());
    const bool whole = pending_.size() == 4 && digits >= 2 &&
                       pending_.find_first_not_of('=', digits) == std::string::npos;
    if (!whole || !decodeGroups(pending_.data(), pending_.size(), bytes)) {
        return false;
    }
    bytes.resize(bytes.size() - (4 - digits));
    return true;
}

}  // namespace host
