/// @file
/// Conversions between bytes and text.
#pragma once

#include <string>

namespace veloran::utilities {

/// Has no state; may be called from any thread. Each call may throw std::bad_alloc.
class SerializationUtils {
public:
    /// Returns the bytes of the hexadecimal text `hex`, upper or lower case. Text that is
    /// not hexadecimal gives unspecified bytes, and no error.
    static std::string FromHex(const std::string& hex);

    /// Returns the Base64 text of `bytes` (RFC 4648, padded), on one line.
    static std::string ToBase64(const std::string& bytes);
};

}  // namespace veloran::utilities
