// export and name.
#include <memory>

#include "client/cli/command_line.h"
#include "client/cli/examples.h"
#include "client/cli/filter_options.h"
#include "client/commands/commands.h"

namespace {

using Request = std::shared_ptr<ExportRequest>;

// The path that is printed is relative to what the caller's are.
std::function<void()> forDevice(Program& program, const Request& request,
                                void (*action)(const ExportRequest&)) {
    return [&program, request, action] {
        request->deviceFolder = program.device;
        action(*request);
    };
}

void addDirectory(CLI::App& command, std::string& directory) {
    command.add_option("--dir", directory, "Folder for the pages (default: the device's)")
        ->type_name("DIR")
        ->transform(callersPath());
}

void addTarget(CLI::App& command, ExportRequest& request) {
    addDirectory(command, request.directory);
    command.add_option("-o", request.file, "Write this file; for one BOOK")
        ->type_name("FILE")
        ->transform(callersPath())
        ->excludes("--dir");
    command.add_flag("--update", request.update, "Skip books whose page is up to date");
}

void checkBooks(const ExportRequest& request, const CLI::App& command) {
    const bool all = command.count("--all") > 0;
    if (request.books.empty() != all) {
        throw CLI::ValidationError(all ? "--all excludes BOOK"
                                       : "BOOK or --all is required");
    }
    if (!request.file.empty() && request.books.size() != 1) {
        throw CLI::ValidationError("-o is for one BOOK");
    }
}

void addExport(Program& program) {
    const Request request = std::make_shared<ExportRequest>();
    CLI::App& exporting = addCommand(
        program, "export", "Export the notes of books and print the paths of the pages",
        Device::MustExist, forDevice(program, request, exportNotes));
    exporting.parse_complete_callback(
        [request, &exporting] { checkBooks(*request, exporting); });
    addBook(exporting, request->books).expected(1, -1)->required(false);
    exporting.add_flag("--all", "Export every book");
    addFilter(exporting, request->filter);
    exporting
        .add_option("--order", request->order, "Order of the notes: page, id or newest")
        ->type_name("ORDER")
        ->check(CLI::IsMember({"page", "id", "newest"}));
    addTarget(exporting, *request);
    exporting.footer(examples::kExport);
}

void addName(Program& program) {
    const Request request = std::make_shared<ExportRequest>();
    CLI::App& command =
        addCommand(program, "name", "Print the path of the file that an export would write",
                   Device::MustExist, forDevice(program, request, printName));
    addBook(command, request->books);
    addDirectory(command, request->directory);
}

}  // namespace

void addExportCommands(Program& program) {
    addExport(program);
    addName(program);
}
