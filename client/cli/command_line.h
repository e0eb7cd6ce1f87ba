// The command line and its commands.
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
    std::string folder;  // of the collection (-C); empty for the working directory
};

// Each function adds the commands of its file.
void addFileCommands(CommandLine& commandLine);
void addListCommands(CommandLine& commandLine);
void addExportCommands(CommandLine& commandLine);

// Adds a command that calls `action` in the folder of the collection. All that `action`
// refers to must live as long as `commandLine`.
CLI::App& addCommand(CommandLine& commandLine, const char* name, const char* description,
                     CollectionNeed need, std::function<void()> action);

// Adds the argument that names one book; the caller may allow none or several.
CLI::Option& addBook(CLI::App& command, std::vector<std::string>& books);

// Returns a transformation that makes a path absolute, relative to the caller's folder.
CLI::Validator callersPath();

// Runs the command that the arguments name. Returns 0, or 2 after printing an error if they
// are not valid. Throws the exceptions of the command.
int runCommandLine(int argc, const char* const* argv);

}  // namespace client
