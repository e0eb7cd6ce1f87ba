// The commands load and import.
#include <memory>
#include <string>
#include <vector>

#include "client/cli/command_line.h"
#include "client/commands/commands.h"

namespace client {
namespace {

void addLoad(CommandLine& commandLine) {
    const auto request = std::make_shared<LoadRequest>();
    CLI::App& loading = addCommand(commandLine, "load",
                                   "Put the books and notes of files into the collection",
                                   CollectionNeed::MayBeEmpty, [&commandLine, request] {
                                       request->displayRoot = commandLine.folder;
                                       load(*request);
                                   });
    loading
        .add_option("FILE", request->files,
                    "Files of any kind that can be loaded, and .sdr folders")
        ->transform(callersPath())
        ->required();
    loading.add_option("--pages", request->pages, "Then export all books into this folder")
        ->type_name("DIR")
        ->transform(callersPath());
}

void addImport(CommandLine& commandLine) {
    const auto files = std::make_shared<std::vector<std::string>>();
    addCommand(commandLine, "import",
               "Merge the notes of exported files into the collection",
               CollectionNeed::MayBeEmpty, [files] { importAll(*files); })
        .add_option("FILE", *files, "The exported files")
        ->transform(callersPath())
        ->required();
}

}  // namespace

void addFileCommands(CommandLine& commandLine) {
    addLoad(commandLine);
    addImport(commandLine);
}

}  // namespace client
