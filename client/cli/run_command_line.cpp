#include "client/cli/run_command_line.h"

#include "client/cli/command_line.h"
#include "client/cli/examples.h"
#include "client/cli/usage_errors.h"

namespace {

void addAll(Program& program) {
    program.parser.require_subcommand(1);
    program.parser.failure_message(misuse);
    program.parser.set_version_flag("--version", "notes-export " NOTES_EXPORT_VERSION);
    program.parser
        .add_option("-C", program.device,
                    "The folder that holds the device (default: this folder)")
        ->type_name("DIR");
    addFileCommands(program);
    addListCommands(program);
    addExportCommands(program);
    // Last, as commands take over the one there is.
    program.parser.footer(examples::kAll);
}

}  // namespace

int runCommandLine(int argc, const char* const* argv) {
    Program program;
    addAll(program);
    CLI::App& parser = program.parser;
    try {
        parser.parse(argc, argv);
    } catch (const CLI::RequiredError& error) {
        // Of an unknown command, the parser says only that a known one is missing.
        const std::vector<std::string> unknown = parser.remaining();
        parser.exit(unknown.empty() ? CLI::Error(error) : notUnderstood(unknown));
        return 2;
    } catch (const CLI::ParseError& error) {
        return parser.exit(error) == 0 ? 0 : 2;
    }
    return 0;
}
