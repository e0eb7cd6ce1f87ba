#include "client/text/one_line.h"

#include "client/text/control_characters.h"

std::string oneLine(const std::string& text) {
    return replaceSteering(text, [](unsigned /*code*/, std::string_view /*character*/) {
        return std::string(" ");
    });
}
