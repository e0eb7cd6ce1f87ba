#include "client/cli/command_line.h"

#include <utility>

namespace client {

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

}  // namespace client
