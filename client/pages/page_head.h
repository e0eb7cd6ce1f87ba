// What an exported page has before its first note, as the library writes it. A page that
// another program has written again is none here.
#pragma once

#include <string>

namespace client {

struct PageHead {
    std::string styleSheet;
    std::string dump;     // Base64 in lines
    std::string heading;  // the title, as markup
    std::string author;   // as markup; empty when the page names none
};

// Of the page at `path`; all empty when it is no such page or cannot be read.
PageHead readPageHead(const std::string& path);

// The hash of the book that the page's dump is of; empty as above.
std::string bookHashIn(const std::string& path);

}  // namespace client
