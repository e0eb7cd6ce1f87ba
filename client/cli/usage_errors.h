// What is wrong with what the user typed.
#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

// The parser's check of a note's identifier: empty, or what is wrong. Stricter than the
// parser itself, which takes signs and octal numbers and lets large ones wrap.
std::string isIdentifier(const std::string& text);

// The same of a date, with a time or without.
std::string isTime(const std::string& text);

// The same of text to look for: in all notes is no text.
std::string isNotEmpty(const std::string& text);

// The error of words that the parser left over where it wanted a command.
CLI::Error notUnderstood(const std::vector<std::string>& words);

// The parser's error as the user reads it, with the help text to turn to.
std::string misuse(const CLI::App* app, const CLI::Error& error);
