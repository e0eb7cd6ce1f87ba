#include "client/sources/w3c/color.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "client/text/numbers.h"

namespace client {
namespace {

struct Color {
    const char* name;
    int value;  // 0xrrggbb
};

constexpr std::array<Color, 9> kColors = {{{"yellow", 0xffe400},
                                           {"orange", 0xff9a00},
                                           {"red", 0xe02020},
                                           {"pink", 0xff8fc8},
                                           {"purple", 0x9b59d0},
                                           {"blue", 0x4a90e2},
                                           {"cyan", 0x30c8d8},
                                           {"green", 0x5fc35f},
                                           {"grey", 0x9a9a9a}}};

int squareOfDifference(int one, int other, int shift) {
    const int difference = (one >> shift & 0xff) - (other >> shift & 0xff);
    return difference * difference;
}

int distance(int one, int other) {
    return squareOfDifference(one, other, 16) + squareOfDifference(one, other, 8) +
           squareOfDifference(one, other, 0);
}

}  // namespace

std::string colorNamed(const std::string& text) {
    const auto value = text.size() == 7 && text[0] == '#'
                           ? parseNumber<unsigned>(std::string_view(text).substr(1), 16)
                           : std::nullopt;
    if (!value) {
        return text;
    }
    return std::min_element(
               kColors.begin(), kColors.end(),
               [color = static_cast<int>(*value)](const Color& one, const Color& other) {
                   return distance(one.value, color) < distance(other.value, color);
               })
        ->name;
}

}  // namespace client
