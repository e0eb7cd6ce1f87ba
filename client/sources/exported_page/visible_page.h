// The visible part of an exported page.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "client/collection/note.h"

namespace client {

struct VisiblePage {
    std::string heading = {};                  // date and title
    std::string author = {};                   // empty if there is none
    std::string bookHash = {};                 // of its dump; empty if there is none
    std::deque<Note> notes = {};               // a vector of many would be moved in memory
    std::vector<std::string> unreadable = {};  // uuids of notes with a damaged picture
};

// Reads HTML in UTF-8. Ignores line breaks that only indent a text.
VisiblePage readVisiblePage(std::string_view html);

}  // namespace client
