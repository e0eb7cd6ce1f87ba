// The JSON text of a tag.
#pragma once

#include <json/value.h>

#include <optional>
#include <string>

namespace host {

// Whether `text` is one whole JSON value (RFC 8259, UTF-8) that nests no deeper than 32
// levels. Takes little memory, whatever the text.
bool isJson(const std::string& text);

// The value that `text` spells; nothing when it is not JSON as above, or longer than any
// tag of a note has reason to be (256 KiB).
std::optional<Json::Value> parseJson(const std::string& text);

}  // namespace host
