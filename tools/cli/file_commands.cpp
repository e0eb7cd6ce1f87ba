// load and import.
#include <memory>
#include <string>
#include <vector>

#include "cli/program.h"
#include "commands/commands.h"

void addFileCommands(Program& program) {
    const auto files = std::make_shared<std::vector<std::string>>();
    addCommand(program, "load", "Put the books and notes of files on the device",
               Device::MayBeEmpty, [files] { loadAll(*files); })
        .add_option("FILE", *files, "Files of any kind that notes come in")
        ->transform(callersPath())
        ->required();
    addCommand(program, "import", "Merge the notes that exported files carry",
               Device::MayBeEmpty, [files] { importAll(*files); })
        .add_option("FILE", *files, "The exported files")
        ->transform(callersPath())
        ->required();
}
