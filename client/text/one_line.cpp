#include "client/text/one_line.h"

#include "client/text/control_characters.h"

namespace client {

std::string oneLine(const std::string& text) {
    return replaceControls(text, [](unsigned /*code*/, std::string_view /*character*/) {
        return std::string(" ");
    });
}

}  // namespace client
