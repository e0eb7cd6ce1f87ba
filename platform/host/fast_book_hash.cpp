#include "fast_book_hash.h"

#include <xxhash.h>

#include <memory>
#include <new>
#include <optional>
#include <stdexcept>
#include <vector>

#include "files/input_file.h"

namespace {

using HashState = std::unique_ptr<XXH3_state_t, XXH_errorcode (*)(XXH3_state_t*)>;

XXH128_canonical_t hashOf(host::InputFile& file) {
    const HashState state(XXH3_createState(), XXH3_freeState);
    if (state == nullptr) {
        throw std::bad_alloc();
    }
    XXH3_128bits_reset(state.get());
    std::vector<char> block(65536);  // a caller's thread may have a small stack
    while (const std::size_t size = file.read(block.data(), block.size())) {
        XXH3_128bits_update(state.get(), block.data(), size);
    }
    XXH128_canonical_t hash;
    XXH128_canonicalFromHash(&hash, XXH3_128bits_digest(state.get()));
    return hash;
}

std::optional<XXH128_canonical_t> hashOfFile(const char* path) {
    try {
        host::InputFile file(path);
        return hashOf(file);
    } catch (const std::runtime_error&) {  // reported by the result
        return std::nullopt;
    }
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
