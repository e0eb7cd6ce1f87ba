// Digests of content: XXH3, 128 bit, as hexadecimal digits.
#pragma once

#include <xxhash.h>

#include <memory>
#include <string>
#include <string_view>

namespace client {

class Digest {
public:
    Digest();

    void add(std::string_view bytes);

    // Also adds the length, so that no other sequence of texts gives the same digest.
    void addText(std::string_view text);

    std::string hexadecimal() const;

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
