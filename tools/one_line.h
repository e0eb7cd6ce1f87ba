// Text from the device, on one line of the client's output.
#pragma once

#include <algorithm>
#include <string>

// The text with a space for each of its control characters.
inline std::string oneLine(std::string text) {
    const auto isControl = [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code < 0x20 || code == 0x7F;
    };
    std::replace_if(text.begin(), text.end(), isControl, ' ');
    return text;
}
