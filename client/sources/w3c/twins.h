// Annotations of one set that share an id.
#pragma once

#include <vector>

#include "client/sources/content/json.h"

namespace client {

// Sorts the annotations that share an id, or without one all that identifies them: by
// time, then by content. The first one gets the id as its uuid, which so does not depend
// on the order in the file. All others stay in their places.
void sortTwins(std::vector<const JsonValue*>& items);

}  // namespace client
