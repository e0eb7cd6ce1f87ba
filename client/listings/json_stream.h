// JSON for programs and terminals.
#pragma once

#include <rapidjson/stringbuffer.h>

#include <ostream>
#include <string>

#include "dump/json_sax.h"

namespace client {

using JsonBuffer =
    rapidjson::GenericStringBuffer<rapidjson::UTF8<>, host::ThrowingAllocator>;
using JsonText = host::JsonWriter<JsonBuffer>;

inline rapidjson::SizeType length(const std::string& text) {
    return static_cast<rapidjson::SizeType>(text.size());
}

void writeText(JsonText& json, const char* name, const std::string& text);

// Characters that control a terminal are escaped, and bytes that are not UTF-8 become
// U+FFFD.
class JsonStream {
public:
    explicit JsonStream(std::ostream& out) : out_(out) {}

    // Returns the writer. What it writes is printed by flush().
    JsonText& writer() { return writer_; }
    void flush();

    // Prints the rest, and ends the line.
    void endLine();

private:
    std::ostream& out_;
    JsonBuffer buffer_;
    JsonText writer_{buffer_};
};

}  // namespace client
