#include <openssl/evp.h>

#include "fast_book_hash.h"
#include "oa_buildpath.h"
#include "system/filesystem.h"
#include "timing_device.h"
#include "utilities/serialization_utils.h"

int FastBookHash(const char* /*path*/, char* buffer, int /*size*/) {
    buffer[0] = '1';
    return 1;
}

int oa_buildpath(const char* /*path*/) { return 0; }

namespace veloran::system::filesystem {

// "Book.html" is the first name that is asked for, then come "Book (1).html" and so on.
bool IsFileExist(const std::string& path) {
    const std::size_t counter = path.find('(');
    const std::size_t place =
        counter == std::string::npos ? 0 : std::stoul(path.substr(counter + 1));
    return place < timing_platform::device().takenNames;
}

std::string GetFileNameFromPath(const std::string& path) { return path; }

}  // namespace veloran::system::filesystem

namespace veloran::utilities {

std::string SerializationUtils::FromHex(const std::string& hex) { return hex; }

std::string SerializationUtils::ToBase64(const std::string& bytes) {
    std::string text((bytes.size() + 2) / 3 * 4, '\0');
    EVP_EncodeBlock(reinterpret_cast<unsigned char*>(text.data()),
                    reinterpret_cast<const unsigned char*>(bytes.data()),
                    static_cast<int>(bytes.size()));
    return text;
}

}  // namespace veloran::utilities
