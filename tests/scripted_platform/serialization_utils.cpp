#include "utilities/serialization_utils.h"

#include <cstddef>
#include <cstdlib>

#include "script.h"

namespace {

std::string encoded(std::string bytes) {
    constexpr char kDigits[] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    const std::size_t padding = (3 - bytes.size() % 3) % 3;
    bytes.append(padding, '\0');
    std::string text;
    unsigned group = 0;
    for (std::size_t i = 0; i < bytes.size(); i++) {
        group = (group << 8U | static_cast<unsigned char>(bytes[i])) & 0xffffffU;
        for (unsigned shift = 24; i % 3 == 2 && shift > 0;) {
            text += kDigits[group >> (shift -= 6) & 63U];
        }
    }
    return text.replace(text.size() - padding, padding, padding, '=');
}

}  // namespace

namespace veloran::utilities {

std::string SerializationUtils::FromHex(const std::string& hex) {
    scripted::recordCall("SerializationUtils::FromHex(" + hex + ")");
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        bytes += static_cast<char>(std::strtol(hex.substr(i, 2).c_str(), nullptr, 16));
    }
    return bytes;
}

std::string SerializationUtils::ToBase64(const std::string& bytes) {
    scripted::recordCall("SerializationUtils::ToBase64(" + std::to_string(bytes.size()) +
                         " bytes)");
    return encoded(bytes);
}

}  // namespace veloran::utilities
