#include "client/terminal/terminal.h"

#include <unistd.h>

#include <cstdlib>
#include <sstream>
#include <string_view>

#include "client/text/control_characters.h"

namespace client {
namespace {

std::string_view variable(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? std::string_view() : value;
}

}  // namespace

bool isTerminal(int descriptor) {
    const std::string_view kind = variable("TERM");
    return isatty(descriptor) == 1 && !kind.empty() && kind != "dumb";
}

bool isColorful(int descriptor) {
    return variable("NO_COLOR").empty() && isTerminal(descriptor);
}

std::string bold(const std::string& text) {
    return isColorful(STDOUT_FILENO) ? "\033[1m" + text + "\033[0m" : text;
}

std::string printable(const std::string& path) {
    const bool isPlain = isatty(STDOUT_FILENO) == 0 && path.find('\n') == std::string::npos;
    return isPlain ? path : oneLine(path);
}

std::string errorText(const std::string& text) {
    std::string result =
        isColorful(STDERR_FILENO) ? "\033[1;31mnotes-export:\033[0m " : "notes-export: ";
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        result += oneLine(line) + '\n';
    }
    return result;
}

}  // namespace client
