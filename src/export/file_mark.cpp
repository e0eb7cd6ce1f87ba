#include "export/file_mark.h"

#include <array>

#include "db/db_manager.h"
#include "export/file_path.h"
#include "fast_book_hash.h"

namespace veloran {

namespace {

constexpr auto kNotesProperty = static_cast<db::DbManager::FileProp>(7);
constexpr char kExportedDocument[] = "2";

}  // namespace

std::string hashOfFile(const std::string& path) {
    if (!namesFile(path)) {
        return {};
    }
    std::array<char, 256> buffer{};
    constexpr int kCapacity = static_cast<int>(buffer.size());
    const int length = FastBookHash(path.c_str(), buffer.data(), kCapacity);
    // Lengths beyond the buffer are ignored.
    if (length < 1 || length > kCapacity) {
        return {};
    }
    return {buffer.data(), static_cast<std::size_t>(length)};
}

void markFile(const std::string& hash) {
    db::DbManager::Instance()->SetFileProp(hash, kNotesProperty, kExportedDocument);
}

}  // namespace veloran
