#include "terminal/one_line.h"

#include "terminal/steering.h"

std::string oneLine(const std::string& text) {
    return replaceSteering(text, [](unsigned /*code*/, std::string_view /*character*/) {
        return std::string(" ");
    });
}
