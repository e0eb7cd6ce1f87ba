// load and import.
#include <memory>

#include "cli/program.h"
#include "commands/commands.h"

void addFileCommands(Program& program) {
    const auto file = std::make_shared<std::string>();
    addCommand(program, "load", "Put the books and notes of a device file on the device",
               Device::MayBeEmpty, [file] { load(*file); })
        .add_option("FILE", *file, "The device file (JSON)")
        ->transform(callersPath())
        ->required();
    addCommand(program, "import", "Merge the notes that an exported file carries",
               Device::MayBeEmpty, [file] { importNotes(*file); })
        .add_option("FILE", *file, "The exported file")
        ->transform(callersPath())
        ->required();
}
