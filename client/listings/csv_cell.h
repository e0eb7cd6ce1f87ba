// A cell of comma-separated values, RFC 4180.
#pragma once

#include <string>

namespace client {

// Returns the text as a cell, quoted if needed. Line breaks become line feeds; other
// control characters except tabs become spaces. So that no spreadsheet reads a formula, an
// apostrophe precedes a text that starts, after any spaces and apostrophes, with a tab, a
// line feed, or one of = + - @ or their full-width forms. Removing one apostrophe from each
// cell that starts so restores the text.
std::string csvCell(const std::string& text);

}  // namespace client
