// Errors in what the user typed.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace client {

// Each returns the text of an error, or an empty one, as the parser's checks do.

// Stricter than the parser, which accepts signs and octal numbers and lets large ones wrap.
std::string checkNoteId(const std::string& text);

std::string checkDate(const std::string& text);

// All notes contain an empty text.
std::string checkSearchText(const std::string& text);

// Returns the error for words that the parser left over where it expected a command.
CLI::Error unknownWords(const std::vector<std::string>& words);

// Returns the parser's error as the user reads it, with the help text to turn to.
std::string usageError(const CLI::App* app, const CLI::Error& error);

}  // namespace client
