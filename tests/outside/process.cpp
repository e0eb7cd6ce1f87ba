#include "process.h"

#include <sys/wait.h>

#include <cstdlib>
#include <sstream>

#include "files.h"

namespace {

std::string quoted(const std::string& word) {
    std::string result = "'";
    for (const char byte : word) {
        result += byte == '\'' ? "'\\''" : std::string(1, byte);
    }
    return result + "' ";
}

std::string quoted(const std::vector<std::string>& words) {
    std::string command;
    for (const std::string& word : words) {
        command += quoted(word);
    }
    return command;
}

}  // namespace

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

Outcome run(const std::vector<std::string>& words) {
    const int status = std::system((quoted(words) + ">.out 2>.err </dev/null").c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile(".out"),
            readFile(".err")};
}

Outcome runOnTerminal(const std::vector<std::string>& words) {
    return run({"script", "--quiet", "--return", "--echo", "never", "--command",
                quoted(words), "/dev/null"});
}
