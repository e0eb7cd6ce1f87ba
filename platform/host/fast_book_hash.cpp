#include "fast_book_hash.h"

#include <xxhash.h>

#include <array>
#include <fstream>
#include <memory>
#include <new>
#include <optional>

namespace {

using HashState = std::unique_ptr<XXH3_state_t, XXH_errorcode (*)(XXH3_state_t*)>;

std::optional<XXH128_canonical_t> hashOfFile(const char* path) {
    const HashState state(XXH3_createState(), XXH3_freeState);
    if (state == nullptr) {
        throw std::bad_alloc();
    }
    XXH3_128bits_reset(state.get());
    std::ifstream file(path, std::ios::binary);
    std::array<char, 65536> block;
    while (file) {
        file.read(block.data(), block.size());
        XXH3_128bits_update(state.get(), block.data(),
                            static_cast<std::size_t>(file.gcount()));
    }
    if (!file.eof()) {  // never opened, or not readable to its end, like a directory
        return std::nullopt;
    }
    XXH128_canonical_t hash;
    XXH128_canonicalFromHash(&hash, XXH3_128bits_digest(state.get()));
    return hash;
}

}  // namespace

int FastBookHash(const char* path, char* buffer, int size) {
    constexpr const char* kDigits = "0123456789abcdef";
    constexpr int kLength = 2 * sizeof(XXH128_canonical_t);
    if (size < kLength) {
        return 0;
    }
    const auto hash = hashOfFile(path);
    if (!hash) {
        return 0;
    }
    for (const unsigned byte : hash->digest) {
        *buffer++ = kDigits[byte >> 4];
        *buffer++ = kDigits[byte & 15];
    }
    return kLength;
}
