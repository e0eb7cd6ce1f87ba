#include <algorithm>
#include <filesystem>
#include <system_error>

#include "client/collection/collection_folder.h"
#include "client/collection/loading.h"
#include "client/commands/batch.h"
#include "client/commands/commands.h"
#include "client/sources/source.h"
#include "client/text/affixes.h"

namespace client {

namespace fs = std::filesystem;

namespace {

// Returns the sidecars in a folder "Emma.sdr"; any other path, and that of a folder without
// sidecars, as it is.
std::vector<std::string> filesAt(const fs::path& path) {
    std::vector<std::string> files;
    const fs::path folder = path.has_filename() ? path : path.parent_path();
    std::error_code failure;
    if (folder.extension() == ".sdr") {
        for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
             entry.increment(failure)) {
            const std::string name = entry->path().filename().string();
            if (startsWith(name, "metadata.") && endsWith(name, ".lua")) {
                files.push_back(entry->path().string());
            }
        }
    }
    std::sort(files.begin(), files.end());
    return files.empty() ? std::vector<std::string>{path.string()} : files;
}

std::string keptNotes(const FirstFew& notes) {
    return notes.isEmpty()
               ? ""
               : "Kept the collection's version of these notes; the file's differ but are "
                 "not newer:\n" +
                     notes.text();
}

// Nothing is written before all of the file is known to be right.
Outcome loadFile(const std::string& file, std::size_t files) {
    SourceContent content = readSource(file);
    const LoadResult notes =
        addToCollection(content.books, content.onKnownBook, content.styleSheet);
    return {resultOf(file, files, notes.changed),
            content.remark + content.skipped.summary(file) + keptNotes(notes.kept)};
}

bool loadFiles(const std::vector<std::string>& files) {
    return runBatch("Loading", files,
                    [&](const std::string& file) { return loadFile(file, files.size()); });
}

}  // namespace

void load(const LoadRequest& request) {
    std::vector<std::string> files;
    for (const std::string& path : request.files) {
        const std::vector<std::string> found = filesAt(path);
        files.insert(files.end(), found.begin(), found.end());
    }
    const bool isLoaded = loadFiles(files);
    if (!request.pages.empty() && collectionExists()) {
        ExportRequest pages;
        pages.target = {request.pages, "", false, request.displayRoot};
        exportNotes(pages);
    }
    requireDone(isLoaded);
}

}  // namespace client
