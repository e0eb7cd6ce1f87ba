#include "client/cli/command_line.h"

#include <utility>

CLI::App& addCommand(Program& program, const char* name, const char* description,
                     Device device, std::function<void()> action) {
    CLI::App& command = *program.parser.add_subcommand(name, description);
    command.fallthrough();  // -C may follow it
    command.callback([&program, device, action = std::move(action)] {
        enterDevice(program.device, device);
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
