// Runs programs as a user would and tells what came of it.
#pragma once

#include <string>
#include <vector>

struct Outcome {
    int status;  // of exit; -1 when a signal ended the program
    std::string out;
    std::string err;
};

// Runs `words` (the program's path first) in the working directory.
Outcome run(const std::vector<std::string>& words);

// The same on a terminal, which is where the output and the errors then go, as `out`.
Outcome runOnTerminal(const std::vector<std::string>& words);

std::vector<std::string> linesOf(const std::string& text);
