#include "client/terminal/error_text.h"

#include <unistd.h>

#include <sstream>

#include "client/terminal/terminal.h"
#include "client/text/one_line.h"

namespace client {

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
