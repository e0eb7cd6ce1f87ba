// The visible part of an exported page.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "client/collection/note.h"

namespace client {

struct VisiblePage {
    std::string heading = {};   // date and title
    std::string author = {};    // empty: the page names none
    std::string bookHash = {};  // as its dump says; empty if it has none
    std::vector<Note> notes = {};
    std::vector<std::string> unreadable = {};  // uuids of notes with a damaged picture
};

// Reads HTML in UTF-8. Line breaks that a program put into a text to indent it do not
// count.
VisiblePage readVisiblePage(std::string_view html);

}  // namespace client
