// The name of an exported file, of any title, in any directory, whatever is there already.
// The input: title, directory, and a byte for each name to try, "x" where it is taken.
#include <algorithm>

#include "export/notes_exporter_impl.h"
#include "fuzz_target.h"
#include "script.h"

namespace {

using scripted::script;

constexpr char kBook[] = "626f6f6b";

// Of ASCII, what no file system and no shell minds; all that lies beyond.
constexpr std::string_view kHarmless =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 -._\\";

std::string stemOf(const std::string& title) {
    std::string stem;
    for (const char byte : title) {
        const bool isAscii = static_cast<unsigned char>(byte) < 128;
        stem.append(isAscii && kHarmless.find(byte) == kHarmless.npos ? 0 : 1, byte);
    }
    return stem.empty() ? kBook : stem;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto fields =
        fuzz::fieldsOf({reinterpret_cast<const char*>(data), size}, '\x1f', 3);
    const std::string start = fields[1] + "/" + stemOf(fields[0]);
    const std::string taken = fields[2].substr(0, 64);  // more would only take time
    const auto pathOf = [&start](std::size_t number) {
        return start + (number == 0 ? "" : " (" + std::to_string(number) + ")") + ".html";
    };

    script() = {};
    script().libraryIds["book"] = 7;
    script().libraryBooks[7].title = fields[0];
    for (std::size_t number = 0; number < taken.size(); ++number) {
        if (taken[number] == 'x') {
            script().existing.insert(pathOf(number));
        }
    }
    const std::string firstFree =
        pathOf(std::min(taken.find_first_not_of('x'), taken.size()));

    veloran::NotesExporterImpl exporter;
    exporter.setExportDir(fields[1]);
    const std::string path = exporter.getExportFilename(kBook);
    fuzz::check(path == firstFree, path + " is " + firstFree);
    return 0;
}
