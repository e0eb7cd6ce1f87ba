#include "client/files/digest.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <vector>

#include "client/text/affixes.h"
#include "client/text/numbers.h"
#include "files/input_file.h"

namespace client {

std::string DigestValue::hexadecimal() const {
    XXH128_canonical_t canonical;
    XXH128_canonicalFromHash(&canonical, hash);
    std::string digits;
    for (const unsigned char byte : canonical.digest) {
        digits += client::hexadecimal(byte);
    }
    return digits;
}

Digest::Digest() : state_(XXH3_createState(), XXH3_freeState) {
    if (state_ == nullptr) {
        throw std::bad_alloc();
    }
    XXH3_128bits_reset(state_.get());
}

void Digest::add(std::string_view bytes) {
    XXH3_128bits_update(state_.get(), bytes.data(), bytes.size());
}

void Digest::addText(std::string_view text) {
    add(std::to_string(text.size()) + ':');
    add(text);
}

std::string contentDigest(const std::string& path) {
    host::InputFile file(path);
    Digest digest;
    std::vector<char> block(65536);
    bool isStart = true;
    while (const std::size_t size = file.read(block.data(), block.size())) {
        const auto end = block.begin() + static_cast<std::ptrdiff_t>(size);
        const auto kept = std::remove(block.begin(), end, '\r');
        const std::string_view text(block.data(),
                                    static_cast<std::size_t>(kept - block.begin()));
        digest.add(isStart ? withoutByteOrderMark(text) : text);
        isStart = false;
    }
    return digest.hexadecimal();
}

std::string tryContentDigest(const std::string& path) {
    std::error_code failure;
    try {
        const auto status = std::filesystem::symlink_status(path, failure);
        return std::filesystem::is_regular_file(status) ? contentDigest(path) : "";
    } catch (const std::runtime_error&) {
        return {};
    }
}

}  // namespace client
