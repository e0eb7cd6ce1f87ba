// Commands of the client: loads of each source, compared with a device file of the same
// notes, and exports of many books, compared with the library alone.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <iostream>
#include <sstream>

#include "client/collection/collection_folder.h"
#include "client/collection/note_order.h"
#include "client/commands/commands.h"
#include "client/pages/exporter.h"
#include "job.h"
#include "note_files.h"
#include "store/database_paths.h"
#include "store/reader_store.h"

namespace {

namespace fs = std::filesystem;

constexpr char kPages[] = "pages";

// Discards the output of the commands.
class Silence {
public:
    ~Silence() { std::cout.rdbuf(before_); }

private:
    std::ostringstream output_;
    std::streambuf* const before_ = std::cout.rdbuf(output_.rdbuf());
};

// Enters a new folder, which each process has for itself.
void enterScratch() {
    static const ScratchFolder scratch;
    fs::current_path(scratch.path());
}

void removeDevice() { fs::remove_all(fs::path(host::kReaderDatabasePath).parent_path()); }

template <const char* kFile>
double load(std::size_t notes) {
    enterScratch();
    enterNoteFiles(1, notes);
    removeDevice();
    const Silence silence;
    return secondsOf([] { client::load({{kFile}, ""}); });
}

client::ExportRequest exportRequest() {
    client::ExportRequest request;
    request.target.directory = kPages;
    return request;
}

void enterDeviceOf(std::size_t books) {
    enterScratch();
    constexpr std::size_t kNotesABook = 100;
    enterNoteFiles(books, kNotesABook);
    client::prepareCollection();
    if (host::ReaderStore(host::kReaderDatabasePath).books().size() != books) {
        removeDevice();
        client::load({{kDeviceFile}, ""});
    }
}

double exportAll(std::size_t books) {
    const Silence silence;
    enterDeviceOf(books);
    fs::remove_all(kPages);
    return secondsOf([] { client::exportNotes(exportRequest()); });
}

double updateAll(std::size_t books) {
    exportAll(books);
    const Silence silence;
    return secondsOf([] { client::exportNotes(exportRequest()); });
}

// Exports each book with its own exporter, as a program for one book does.
double exportOneByOne(std::size_t books) {
    const Silence silence;
    enterDeviceOf(books);
    fs::remove_all(kPages);
    double seconds = 0;
    for (const auto& book : host::ReaderStore(host::kReaderDatabasePath).books()) {
        seconds += secondsOf([&] {
            const client::Exporter exporter(kPages);
            notes_exporter_export_bookmarks_to_html(
                exporter.handle(), book.fastHash.c_str(), nullptr, 0, nullptr, nullptr);
        });
    }
    return seconds;
}

// Enters a folder of its own, whose book has places.
void enterDeviceOfBook(std::size_t notes) {
    enterScratch();
    enterNoteFiles(1, notes);
    fs::create_directory("book");
    fs::current_path("book");
    if (!client::collectionExists()) {
        const Silence silence;
        client::load({{std::string("../") + kClippings}, ""});
    }
}

double orderForReading(std::size_t notes) {
    enterDeviceOfBook(notes);
    host::ReaderStore store(host::kReaderDatabasePath);
    const std::string hash = store.books().at(0).fastHash;
    return secondsOf([&] {
        const auto ordered = client::notesInOrder(client::NoteOrder::Reading, hash, store);
        benchmark::DoNotOptimize(ordered.size());
    });
}

double exportBook(std::size_t notes) {
    enterDeviceOfBook(notes);
    fs::remove_all(kPages);
    const Silence silence;
    return secondsOf([] { client::exportNotes(exportRequest()); });
}

constexpr Job loadDeviceFile = load<kDeviceFile>;

BENCHMARK_CAPTURE(timed, loadDeviceFile, loadDeviceFile)->Arg(100000)->UseManualTime();
BENCHMARK_CAPTURE(timed, exportAll, exportAll)->Arg(400)->UseManualTime();
BENCHMARK_CAPTURE(ratio, loadClippingsToDeviceFile, load<kClippings>, loadDeviceFile)
    ->Arg(100000);
BENCHMARK_CAPTURE(ratio, loadKoboToDeviceFile, load<kKoboDatabase>, loadDeviceFile)
    ->Arg(100000);
BENCHMARK_CAPTURE(ratio, loadAnnotationsToDeviceFile, load<kAnnotationSet>, loadDeviceFile)
    ->Arg(100000);
BENCHMARK_CAPTURE(ratio, loadSidecarToDeviceFile, load<kSidecar>, loadDeviceFile)
    ->Arg(100000);
BENCHMARK_CAPTURE(ratio, readingOrderToExport, orderForReading, exportBook)->Arg(100000);
BENCHMARK_CAPTURE(ratio, exportAllToOneByOne, exportAll, exportOneByOne)->Arg(400);
BENCHMARK_CAPTURE(ratio, updateToExportAll, updateAll, exportAll)->Arg(400);

}  // namespace
