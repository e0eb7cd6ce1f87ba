// The client's command line, to which each command adds itself.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

#include "client/collection/collection_folder.h"

struct Program {
    CLI::App parser{
        "Exports the notes of a book into one file that any browser opens, and "
        "imports such files.",
        "notes-export"};
    std::string device;  // the folder that -C names; empty: the working directory
};

// Each adds the commands of its file.
void addFileCommands(Program& program);
void addListCommands(Program& program);
void addExportCommands(Program& program);

// A command that does its `action` in the folder of the device. It and all that it refers
// to must live as long as the program.
CLI::App& addCommand(Program& program, const char* name, const char* description,
                     Device device, std::function<void()> action);

// The argument that names a book: required and only one, unless the caller changes that.
CLI::Option& addBook(CLI::App& command, std::vector<std::string>& books);

// The check of a path that stays relative to the caller's own folder.
CLI::Validator callersPath();
