// A cell of a table of comma-separated values, RFC 4180.
#pragma once

#include <string>

namespace client {

// The text as a cell, quoted where it must be. Line breaks become line feeds, other control
// characters but tabs become spaces. A spreadsheet takes no cell for a formula: an
// apostrophe goes before a text that starts, after any spaces and apostrophes, with a tab,
// a line feed, or one of = + - @ or their full-width forms. Whoever takes one apostrophe
// off each cell that starts so has the text again.
std::string csvCell(const std::string& text);

}  // namespace client
