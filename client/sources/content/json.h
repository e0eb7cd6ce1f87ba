// JSON documents.
#pragma once

#include <rapidjson/document.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "dump/json_sax.h"

namespace client {

using JsonDocument =
    rapidjson::GenericDocument<rapidjson::UTF8<>,
                               rapidjson::MemoryPoolAllocator<host::ThrowingAllocator>,
                               host::ThrowingAllocator>;
using JsonValue = JsonDocument::ValueType;

// Parses the content of the file at `path`; skips a byte order mark. Strings of the
// document are in `text`, which is changed and must outlive it. Throws UserError with the
// line and the column if the text is not JSON, or nested too deep.
JsonDocument parseJson(std::string& text, const std::string& path);

// Each level of a document takes memory, so none is nested deeper.
inline constexpr int kMaxJsonDepth = 1000;

// Returns the line and the column of a byte of the file, for messages.
std::string placeIn(const std::string& path, std::size_t offset);

// Returns the last member of an object with this name; null if there is none, or if the
// value is not an object.
const JsonValue& memberOf(const JsonValue& value, const char* name);

// Returns the text; empty if the value is not a text.
std::string_view textIn(const JsonValue& value);

// Returns the number; nullopt if the value is not a finite number.
std::optional<double> numberIn(const JsonValue& value);

}  // namespace client
