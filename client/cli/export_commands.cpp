// The commands export and name.
#include <memory>

#include "client/cli/command_line.h"
#include "client/cli/examples.h"
#include "client/cli/filter_options.h"
#include "client/cli/usage_errors.h"
#include "client/commands/commands.h"

namespace client {
namespace {

using Request = std::shared_ptr<ExportRequest>;

void addDirectory(CLI::App& command, std::string& directory) {
    command
        .add_option("--dir", directory, "Folder for the pages (default: the collection's)")
        ->type_name("DIR")
        ->transform(callersPath());
}

void addTarget(CLI::App& command, PageTarget& target) {
    addDirectory(command, target.directory);
    command.add_option("-o", target.file, "Write this file; for one BOOK")
        ->type_name("FILE")
        ->transform(callersPath())
        ->check(checkFile)
        ->excludes("--dir");
    command.add_flag("--new", target.isNew, "Write a new page and keep the old ones")
        ->excludes("-o");
}

void requireBooks(const ExportRequest& request, const CLI::App& command) {
    if (!request.books.empty() && command.count("--all") > 0) {
        throw CLI::ValidationError("--all excludes BOOK");
    }
    if (!request.target.file.empty() && request.books.size() != 1) {
        throw CLI::ValidationError("-o is for one BOOK");
    }
}

// Adds a command that prints paths, relative to the caller's folder.
CLI::App& addPageCommand(CommandLine& commandLine, const char* name,
                         const char* description, const Request& request,
                         void (*action)(const ExportRequest&)) {
    return addCommand(commandLine, name, description, CollectionNeed::MustExist,
                      [&commandLine, request, action] {
                          request->target.displayRoot = commandLine.folder;
                          action(*request);
                      });
}

void addExport(CommandLine& commandLine) {
    const Request request = std::make_shared<ExportRequest>();
    CLI::App& exporting = addPageCommand(commandLine, "export",
                                         "Update the pages of books and print their paths",
                                         request, exportNotes);
    exporting.parse_complete_callback(
        [request, &exporting] { requireBooks(*request, exporting); });
    addBook(exporting, request->books).expected(1, -1)->required(false);
    exporting.add_flag("--all", "Export every book (default)");
    exporting.add_flag("--update", "Replace older pages (default)");
    addFilter(exporting, request->filter);
    addOrder(exporting, request->order);
    addTarget(exporting, request->target);
    exporting.footer(examples::kExport);
}

void addName(CommandLine& commandLine) {
    const Request request = std::make_shared<ExportRequest>();
    CLI::App& command = addPageCommand(
        commandLine, "name", "Print the path of the file that an export would write",
        request,
        [](const ExportRequest& asked) { printName(asked.books.front(), asked.target); });
    addBook(command, request->books);
    addDirectory(command, request->target.directory);
}

}  // namespace

void addExportCommands(CommandLine& commandLine) {
    addExport(commandLine);
    addName(commandLine);
}

}  // namespace client
