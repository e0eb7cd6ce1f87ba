#include "client/collection/collection_folder.h"
#include "client/collection/loading.h"
#include "client/commands/batch.h"
#include "client/commands/commands.h"
#include "client/sources/source.h"

namespace client {
namespace {

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
    const bool isLoaded = loadFiles(request.files);
    if (!request.pages.empty() && collectionExists()) {
        ExportRequest pages;
        pages.target = {request.pages, "", false, request.displayRoot};
        exportNotes(pages);
    }
    requireDone(isLoaded);
}

}  // namespace client
