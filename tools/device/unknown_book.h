// What to say of a book that the device does not know.
#pragma once

#include <string>

// Names the books that `typed`, which is no book's hash, may mean.
[[noreturn]] void complainAboutUnknownBook(const std::string& typed);
