#include "client/sources/content/json.h"

#include <rapidjson/error/en.h>

#include <algorithm>
#include <cstddef>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/text/affixes.h"

namespace client {
namespace {

// Reads the file again, because parsing changes the text.
std::string placeIn(const std::string& path, std::size_t offset) {
    const std::string before = readStart(path, offset);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t column = before.size() - (before.rfind('\n') + 1) + 1;
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

}  // namespace

JsonDocument parseJson(std::string& text, const std::string& path) {
    constexpr unsigned kFlags = rapidjson::kParseInsituFlag |
                                rapidjson::kParseIterativeFlag |
                                rapidjson::kParseFullPrecisionFlag;
    const std::size_t start = text.size() - withoutByteOrderMark(text).size();
    JsonDocument json;
    rapidjson::InsituStringStream stream(&text[start]);
    json.ParseStream<kFlags>(stream);
    const std::size_t end = start + stream.Tell();
    if (json.HasParseError()) {
        throw UserError(path +
                        " is not JSON: " + placeIn(path, start + json.GetErrorOffset()) +
                        ": " + rapidjson::GetParseError_En(json.GetParseError()));
    }
    if (end != text.size()) {  // the parser takes a zero byte for the end
        throw UserError(path + " is not JSON: " + placeIn(path, end) + ": a zero byte.");
    }
    return json;
}

}  // namespace client
