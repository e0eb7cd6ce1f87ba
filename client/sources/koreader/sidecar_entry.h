// One passage or bookmark of a sidecar.
#pragma once

#include <optional>
#include <string>

#include "client/collection/note.h"
#include "client/sources/content/json.h"

namespace client {

struct SidecarEntry {
    Note note;             // without a uuid
    std::string position;  // where it starts; identifies it with `datetime`
    std::string datetime;  // when it was made, as in the file; may be empty
    bool isPassage;
};

// The names of the members that differ between lists.
struct SidecarTexts {
    const char* passage;
    const char* comment;
};

// Reads an entry. If its page is not in it, it may be the key of its list. Returns nullopt
// if the value names no position.
std::optional<SidecarEntry> parseEntry(const JsonValue& json, const SidecarTexts& texts,
                                       std::optional<double> pageOfList = {});

}  // namespace client
