// One annotation of a set.
#pragma once

#include <optional>
#include <string>

#include "client/collection/note.h"
#include "client/sources/w3c/json.h"

namespace client {

struct Annotation {
    std::string source;  // URI of the book; may be empty
    Note note;           // the uuid is empty if the annotation has none
};

// Returns nullopt if the value is not an annotation.
std::optional<Annotation> parseAnnotation(const JsonValue& json);

}  // namespace client
