#include "cli/program.h"

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

void addBook(CLI::App& command, std::string& hash) {
    command.add_option("HASH", hash, "The book's hash, as \"books\" prints it")->required();
}

CLI::Validator callersPath() {
    const auto resolve = [](std::string& path) {
        makeAbsolute(path);
        return std::string();
    };
    return {resolve, ""};
}
