// Annotations of one set that share an id.
#pragma once

#include <vector>

#include "client/sources/content/json.h"

namespace client {

// Sorts the annotations that share an id, or the same identity without an id: by time, then
// by content. The first one keeps the id as its uuid, so that the uuids do not depend on
// the order in the file. All others stay in their places.
void sortTwins(std::vector<const JsonValue*>& items);

}  // namespace client
