#include <algorithm>
#include <string_view>

#include "export/notes_exporter_impl.h"
#include "system/filesystem.h"

namespace veloran {

namespace {

constexpr std::string_view kForbidden = "*!#$%&()@^`{}~'+,;=[]?<:>|\"/";
static_assert(kForbidden.size() == 28);

// Not iscntrl, because its result depends on the locale.
bool isControl(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code < 0x20 || code == 0x7F;
}

bool isUnsafe(char byte) {
    return isControl(byte) || kForbidden.find(byte) != std::string_view::npos;
}

std::string withoutUnsafe(std::string title) {
    title.erase(std::remove_if(title.begin(), title.end(), isUnsafe), title.end());
    return title;
}

}  // namespace

std::string NotesExporterImpl::getExportFilename(const std::string& bookHash) {
    std::string name = withoutUnsafe(getBookTitle(bookHash));
    if (name.empty()) {
        name = bookHash;
    }
    const std::string stem = exportDir_ + "/" + name;
    std::string candidate = stem + ".html";
    for (long long counter = 1; system::filesystem::IsFileExist(candidate); ++counter) {
        candidate = stem + " (" + std::to_string(counter) + ").html";
    }
    return candidate;
}

}  // namespace veloran
