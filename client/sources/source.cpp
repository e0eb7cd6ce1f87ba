#include "client/sources/source.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/clippings/clippings_file.h"
#include "client/sources/device_file/device_file.h"
#include "client/sources/exported_page/exported_page.h"
#include "client/sources/kobo/kobo_database.h"
#include "client/sources/koreader/sidecar.h"
#include "client/sources/w3c/annotation_set.h"

namespace client {
namespace {

struct Source {
    const char* name;  // of one such file, in messages

    // Returns whether a file is of this kind, from its first 64 KiB.
    bool (*recognises)(std::string_view start);

    SourceContent (*read)(const std::string& path);
};

// The first kind that recognises a file reads it.
constexpr std::array kSources = {
    Source{"a KOReader sidecar", isSidecar, readSidecar},
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
        throw UserError(
            path + " is not a file that notes can be loaded from. Known kinds: " + names() +
            '.');
    }
    return source->read(path);
}

}  // namespace client
