// Identifiers of annotations, which are URIs, and uuids of notes.
#pragma once

#include <string>

namespace client {

// Returns the identifier for a note's uuid: "urn:uuid:…" for one in the form of a UUID, the
// uuid itself if it is a URI, else "urn:x-notes:…".
std::string annotationIdOf(const std::string& uuid);

// Returns the uuid for an identifier; one that annotationIdOf() gave becomes its uuid
// again.
std::string uuidOfAnnotation(const std::string& id);

}  // namespace client
