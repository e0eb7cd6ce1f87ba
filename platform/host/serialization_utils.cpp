#include "utilities/serialization_utils.h"

#include <charconv>

#include "text/base64.h"

namespace veloran::utilities {

std::string SerializationUtils::FromHex(const std::string& hex) {
    std::string bytes;
    bytes.reserve(hex.size() / 2);
    for (std::size_t digit = 0; digit + 2 <= hex.size(); digit += 2) {
        unsigned char byte = 0;
        std::from_chars(hex.data() + digit, hex.data() + digit + 2, byte, 16);
        bytes.push_back(static_cast<char>(byte));
    }
    return bytes;
}

std::string SerializationUtils::ToBase64(const std::string& bytes) {
    return host::encodeBase64(bytes);
}

}  // namespace veloran::utilities
