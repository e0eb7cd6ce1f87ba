// Parts of a note as text, the same in every list.
#pragma once

#include <string>

#include "client/collection/note.h"
#include "client/text/iso_time.h"
#include "client/text/numbers.h"

namespace client {

inline std::string pageText(const Note& note) {
    return note.page ? decimal(*note.page) : std::string();
}

inline std::string timeText(const Note& note) {
    return note.time == 0 ? std::string() : isoTime(note.time);
}

}  // namespace client
