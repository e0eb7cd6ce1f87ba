// The place that pages are exported to.
#pragma once

#include <string>

namespace client {

struct PageTarget {
    std::string directory = {};  // for the pages; empty: the collection's own
    std::string file = {};       // of the one page; empty: it is named after the book
    bool update = false;         // pages that are there already are left alone or replaced
    std::string displayRoot = {};  // the folder that a printed relative path starts from
};

}  // namespace client
