#include "client/sources/source.h"

#include <algorithm>
#include <array>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/clippings/clippings_file.h"
#include "client/sources/device_file/device_file.h"
#include "client/sources/exported_page/exported_page.h"
#include "client/sources/kobo/kobo_database.h"
#include "client/sources/w3c/annotation_set.h"

namespace {

// The first that recognises a file reads it.
constexpr std::array kSources = {
    Source{"an exported page", isExportedPage, readExportedPage},
    Source{"clippings", isClippings, readClippings},
    Source{"a Kobo reader's database", isKoboDatabase, readKoboDatabase},
    Source{"an annotation set", isAnnotationSet, readAnnotationSet},
    Source{"a device file", isDeviceFile, readDeviceFile},
};

std::string names() {
    std::string text;
    for (const Source& source : kSources) {
        text += (text.empty() ? "" : ", ") + std::string(source.name);
    }
    return text;
}

}  // namespace

SourceContent readSource(const std::string& path) {
    constexpr std::size_t kStart = 65536;
    const std::string start = readStart(path, kStart);
    const auto* source =
        std::find_if(kSources.begin(), kSources.end(),
                     [&](const Source& kind) { return kind.recognises(start); });
    if (source == kSources.end()) {
        throw Complaint(path + " is of no known kind. These are read: " + names() + '.');
    }
    return source->read(path);
}
