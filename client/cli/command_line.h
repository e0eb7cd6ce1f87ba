// The command line, to which each command adds itself.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

#include "client/collection/collection_folder.h"

namespace client {

struct CommandLine {
    CLI::App parser{
        "Exports the notes of a book into one file that any browser opens, and "
        "imports such files.",
        "notes-export"};
    std::string folder;  // the collection's, which -C names; empty: the working directory
};

// Each adds the commands of its file.
void addFileCommands(CommandLine& commandLine);
void addListCommands(CommandLine& commandLine);
void addExportCommands(CommandLine& commandLine);

// Adds a command that runs `action` in the folder of the collection. `action` and all that
// it refers to must live as long as `commandLine`.
CLI::App& addCommand(CommandLine& commandLine, const char* name, const char* description,
                     CollectionNeed need, std::function<void()> action);

// Adds the argument that names a book: required and only one, unless the caller changes
// that.
CLI::Option& addBook(CLI::App& command, std::vector<std::string>& books);

// Returns the transformation of a path that stays relative to the caller's own folder.
CLI::Validator callersPath();

// Runs the command that the arguments name. Returns 0, or 2 when they are not understood,
// which has been explained on standard error then. Throws what the command throws.
int runCommandLine(int argc, const char* const* argv);

}  // namespace client
