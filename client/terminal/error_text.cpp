#include "client/error.h"

#include <unistd.h>

#include <sstream>

#include "client/terminal/terminal.h"
#include "client/text/one_line.h"

void complain(const std::string& what, std::error_code why) {
    throw Complaint(what + ": " + why.message());
}

std::string complaintText(const std::string& text) {
    std::string result =
        isColorful(STDERR_FILENO) ? "\033[1;31mnotes-export:\033[0m " : "notes-export: ";
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        result += oneLine(line) + '\n';
    }
    return result;
}
