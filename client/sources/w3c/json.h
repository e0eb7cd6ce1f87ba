// Values of JSON-LD, where one thing may stand for a list of it.
#pragma once

#include <rapidjson/document.h>

#include <string>
#include <vector>

#include "dump/json_sax.h"

using JsonDocument =
    rapidjson::GenericDocument<rapidjson::UTF8<>,
                               rapidjson::MemoryPoolAllocator<host::ThrowingAllocator>,
                               host::ThrowingAllocator>;
using JsonValue = JsonDocument::ValueType;

// The member of an object; null when it has none, and when the value is no object.
const JsonValue& memberOf(const JsonValue& value, const char* name);

// The elements of an array; of anything else the value itself, and of null nothing.
std::vector<const JsonValue*> elementsOf(const JsonValue& value);

// A text, also when it stands under its language; empty for anything else.
std::string textOf(const JsonValue& value);
