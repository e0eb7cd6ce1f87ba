// JSON documents.
#pragma once

#include <rapidjson/document.h>

#include <string>

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

}  // namespace client
