// One annotation of a set.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "client/collection/note.h"
#include "client/sources/content/book_shelf.h"
#include "client/sources/content/json.h"

namespace client {

struct Annotation {
    std::string source;  // URI of the book; may be empty
    Note note;           // the uuid is empty if the annotation has no id

    // Without an id: what identifies the annotation, and did so in version 1.1.
    Identity identity;
    std::vector<Identity> formerIdentities;
};

// Returns nullopt if the value is not an annotation.
std::optional<Annotation> parseAnnotation(const JsonValue& json);

}  // namespace client
