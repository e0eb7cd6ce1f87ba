// One annotation of a set.
#pragma once

#include <optional>
#include <string>

#include "client/collection/note.h"
#include "client/sources/w3c/json.h"

struct Annotation {
    std::string source;  // what it annotates, by its own account; empty: it does not say
    SourceNote note;     // the uuid is empty when the annotation has none
};

// Nothing when the value is no annotation.
std::optional<Annotation> parseAnnotation(const JsonValue& json);
