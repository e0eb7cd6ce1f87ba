#include "utilities/serialization_utils.h"

#include <openssl/evp.h>

#include <cstdlib>

#include "script.h"

namespace veloran::utilities {

std::string SerializationUtils::FromHex(const std::string& hex) {
    scripted::recordCall("SerializationUtils::FromHex", hex);
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        bytes += static_cast<char>(std::strtol(hex.substr(i, 2).c_str(), nullptr, 16));
    }
    return bytes;
}

std::string SerializationUtils::ToBase64(const std::string& bytes) {
    scripted::recordCall("SerializationUtils::ToBase64",
                         std::to_string(bytes.size()) + " bytes");
    std::string text((bytes.size() + 2) / 3 * 4, '\0');
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                    reinterpret_cast<const unsigned char*>(bytes.data()),
                    static_cast<int>(bytes.size()));
    return text;
}

}  // namespace veloran::utilities
