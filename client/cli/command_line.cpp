#include "client/cli/command_line.h"

#include <utility>

#include "client/cli/examples.h"
#include "client/cli/usage_errors.h"

namespace client {
namespace {

void addAll(CommandLine& commandLine) {
    commandLine.parser.require_subcommand(1);
    commandLine.parser.failure_message(usageError);
    commandLine.parser.set_version_flag("--version", "notes-export " NOTES_EXPORT_VERSION);
    commandLine.parser
        .add_option("-C", commandLine.folder,
                    "The folder that holds the collection (default: the working directory)")
        ->type_name("DIR");
    addFileCommands(commandLine);
    addListCommands(commandLine);
    addExportCommands(commandLine);
    // Set last, because new commands inherit the footer.
    commandLine.parser.footer(examples::kAll);
}

}  // namespace

CLI::App& addCommand(CommandLine& commandLine, const char* name, const char* description,
                     CollectionNeed need, std::function<void()> action) {
    CLI::App& command = *commandLine.parser.add_subcommand(name, description);
    command.fallthrough();  // -C may follow it
    command.callback([&commandLine, need, action = std::move(action)] {
        enterCollection(commandLine.folder, need);
        action();
    });
    return command;
}

CLI::Option& addBook(CLI::App& command, std::vector<std::string>& books) {
    return *command.add_option("BOOK", books, "Hash or title of the book, or its start")
                ->type_name("")
                ->expected(1)
                ->required();
}

CLI::Validator callersPath() {
    const auto resolve = [](std::string& path) {
        makeAbsolute(path);
        return std::string();
    };
    return {resolve, ""};
}

int runCommandLine(int argc, const char* const* argv) {
    CommandLine commandLine;
    addAll(commandLine);
    CLI::App& parser = commandLine.parser;
    try {
        parser.parse(argc, argv);
    } catch (const CLI::RequiredError& error) {
        // For an unknown command, the parser only reports a missing one.
        const std::vector<std::string> unknown = parser.remaining();
        parser.exit(unknown.empty() ? CLI::Error(error) : unknownWords(unknown));
        return 2;
    } catch (const CLI::ParseError& error) {
        return parser.exit(error) == 0 ? 0 : 2;
    }
    return 0;
}

}  // namespace client
