#include "client/listings/json_stream.h"

#include <cstdio>

#include "client/text/control_characters.h"

namespace client {
namespace {

std::string escaped(unsigned code, std::string_view /*character*/) {
    char escape[16];
    static_cast<void>(std::snprintf(escape, sizeof escape, "\\u%04X", code));
    return escape;
}

}  // namespace

void writeText(JsonText& json, const char* name, const std::string& text) {
    json.Key(name);
    json.String(text.data(), length(text));
}

// Also escapes what the writer leaves; such characters are only within strings.
void JsonStream::flush() {
    out_ << replaceControls({buffer_.GetString(), buffer_.GetSize()}, escaped);
    buffer_.Clear();
}

void JsonStream::endLine() {
    flush();
    out_ << '\n';
}

}  // namespace client
