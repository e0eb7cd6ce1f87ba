// What an exported page shows.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "client/collection/note.h"

struct VisiblePage {
    std::string heading = {};   // date and title
    std::string author = {};    // empty: the page names none
    std::string bookHash = {};  // as its dump says; empty when it has none
    std::vector<SourceNote> notes = {};
    std::vector<std::string> unreadable = {};  // uuids of notes whose picture is none
};

// Reads HTML in UTF-8. Line breaks that a program put into a text to indent it are none.
VisiblePage readVisiblePage(std::string_view html);
