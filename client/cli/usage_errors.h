// Errors on the command line.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace client {

// Each check returns an error text, or an empty one if the text is valid.

// Stricter than the parser, which accepts signs and octal numbers, and truncates large
// ones.
std::string checkNoteId(const std::string& text);

std::string checkDate(const std::string& text);

// Rejects a text without visible characters, because all notes contain it.
std::string checkSearchText(const std::string& text);

// Rejects a path that no file can have.
std::string checkFile(const std::string& path);

// Returns the error for words where a command was expected.
CLI::Error unknownWords(const std::vector<std::string>& words);

// Returns the message for the parser's error, with a hint to the help text.
std::string usageError(const CLI::App* app, const CLI::Error& error);

}  // namespace client
