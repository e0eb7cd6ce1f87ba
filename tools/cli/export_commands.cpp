// export and name.
#include <memory>

#include "cli/examples.h"
#include "cli/misuse.h"
#include "cli/program.h"
#include "commands/commands.h"

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
    command
        .add_option("--dir", directory,
                    "Folder for the exported file (default: the device's own)")
        ->type_name("DIR")
        ->transform(callersPath());
}

void addExport(Program& program) {
    const Request request = std::make_shared<ExportRequest>();
    CLI::App& exporting = addCommand(
        program, "export", "Export a book's notes and print the path of the file",
        Device::MustExist, forDevice(program, request, exportNotes));
    addBook(exporting, request->hash);
    exporting
        .add_option("--note", request->noteIds, "Export only this note; may be repeated")
        ->type_name("ID")
        ->allow_extra_args(false)
        ->check(isIdentifier);
    exporting
        .add_option("--order", request->order, "Order of the notes: page, id or newest")
        ->type_name("ORDER")
        ->check(CLI::IsMember({"page", "id", "newest"}));
    addDirectory(exporting, request->directory);
    exporting.footer(examples::kExport);
}

void addName(Program& program) {
    const Request request = std::make_shared<ExportRequest>();
    CLI::App& naming =
        addCommand(program, "name", "Print the path of the file that an export would write",
                   Device::MustExist, forDevice(program, request, printName));
    addBook(naming, request->hash);
    addDirectory(naming, request->directory);
}

}  // namespace

void addExportCommands(Program& program) {
    addExport(program);
    addName(program);
}
