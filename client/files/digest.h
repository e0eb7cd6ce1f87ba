// Digests of content: XXH3, 128 bit, as hexadecimal digits.
#pragma once

#include <xxhash.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace client {

// Bytes of a digest, to be compared.
struct DigestValue {
    XXH128_hash_t hash;

    static DigestValue of(std::string_view bytes) {
        return {XXH3_128bits(bytes.data(), bytes.size())};
    }

    bool operator==(const DigestValue& other) const {
        return XXH128_isEqual(hash, other.hash) != 0;
    }
    std::string hexadecimal() const;

    struct Hash {
        std::size_t operator()(const DigestValue& value) const {
            return static_cast<std::size_t>(value.hash.low64);
        }
    };
};

class Digest {
public:
    Digest();

    void add(std::string_view bytes);

    // Also adds the length, so that no other sequence of texts gives the same digest.
    void addText(std::string_view text);

    DigestValue value() const { return {XXH3_128bits_digest(state_.get())}; }
    std::string hexadecimal() const { return value().hexadecimal(); }

private:
    std::unique_ptr<XXH3_state_t, XXH_errorcode (*)(XXH3_state_t*)> state_;
};

// Returns the digest of a regular file's content, without a byte order mark and carriage
// returns: other programs change these, although nobody has edited the file. Throws
// std::runtime_error if the file cannot be read.
std::string contentDigest(const std::string& path);

// Returns the same digest, or an empty text for a link or a file that cannot be read.
std::string tryContentDigest(const std::string& path);

}  // namespace client
