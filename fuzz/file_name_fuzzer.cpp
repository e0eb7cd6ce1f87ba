// The name of an exported file, of any title, in any directory, whatever is there already.
// The input: a byte for each name to try, "x" where it is taken, then directory, hash and
// title.
#include <algorithm>

#include "export/notes_exporter_impl.h"
#include "fuzz_target.h"
#include "script.h"
#include "utilities/serialization_utils.h"

namespace {

using scripted::script;

// Of ASCII, what no file system and no shell minds; all that lies beyond.
constexpr std::string_view kHarmless =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 -._\\";

std::string stemOf(const std::string& title, const std::string& hash) {
    std::string stem;
    for (const char byte : title) {
        const bool isAscii = static_cast<unsigned char>(byte) < 128;
        stem.append(isAscii && kHarmless.find(byte) == kHarmless.npos ? 0 : 1, byte);
    }
    return stem.empty() ? hash : stem;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string input(data, data + size);
    const auto fields = fuzz::fieldsOf(input, '\x1f', 4);
    const std::string taken = fields[0].substr(0, 64);  // more would only take time
    const std::string &directory = fields[1], &hash = fields[2];
    const std::size_t head = fields[0].size() + directory.size() + hash.size() + 3;
    const std::string title = input.substr(std::min(head, size));
    const std::string start = directory + "/" + stemOf(title, hash);
    const auto pathOf = [&start](std::size_t number) {
        return start + (number == 0 ? "" : " (" + std::to_string(number) + ")") + ".html";
    };

    script() = {};
    script().bookIdsByUid[veloran::utilities::SerializationUtils::FromHex(hash)] = 7;
    script().booksOfLibrary[7].title = title;
    for (std::size_t number = 0; number < taken.size(); ++number) {
        if (taken[number] == 'x') {
            script().existing.insert(pathOf(number));
        }
    }
    const std::string firstFree =
        pathOf(std::min(taken.find_first_not_of('x'), taken.size()));

    veloran::NotesExporterImpl exporter;
    exporter.setExportDir(directory);
    const std::string path = exporter.getExportFilename(hash);
    fuzz::check(path == firstFree, path + " is " + firstFree);
    return 0;
}
