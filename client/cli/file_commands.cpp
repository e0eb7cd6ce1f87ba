// load and import.
#include <memory>
#include <string>
#include <vector>

#include "client/cli/command_line.h"
#include "client/commands/batch.h"
#include "client/commands/commands.h"

namespace {

struct LoadRequest {
    std::vector<std::string> files;
    std::string pages;  // folder; empty: none are exported
};

// Pages are exported also when some of the files have failed.
void loadAndExport(const LoadRequest& request, const std::string& deviceFolder) {
    bool isLoaded = false;
    try {
        loadAll(request.files);
        isLoaded = true;
    } catch (const FailuresReported&) {
    }
    if (!request.pages.empty() && isDevice()) {
        ExportRequest exporting;
        exporting.directory = request.pages;
        exporting.update = true;
        exporting.deviceFolder = deviceFolder;
        exportNotes(exporting);
    }
    if (!isLoaded) {
        throw FailuresReported();
    }
}

void addLoad(Program& program) {
    const auto request = std::make_shared<LoadRequest>();
    CLI::App& loading =
        addCommand(program, "load", "Put the books and notes of files on the device",
                   Device::MayBeEmpty,
                   [&program, request] { loadAndExport(*request, program.device); });
    loading.add_option("FILE", request->files, "Files of any kind that notes come in")
        ->transform(callersPath())
        ->required();
    loading
        .add_option("--pages", request->pages, "Then export the pages of all books there")
        ->type_name("DIR")
        ->transform(callersPath());
}

void addImport(Program& program) {
    const auto files = std::make_shared<std::vector<std::string>>();
    addCommand(program, "import", "Merge the notes that exported files carry",
               Device::MayBeEmpty, [files] { importAll(*files); })
        .add_option("FILE", *files, "The exported files")
        ->transform(callersPath())
        ->required();
}

}  // namespace

void addFileCommands(Program& program) {
    addLoad(program);
    addImport(program);
}
