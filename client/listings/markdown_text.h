// Plain text in Markdown: a CommonMark renderer shows exactly this text, and so do
// renderers with tables, mathematics, tags or other extensions.
#pragma once

#include <string>

namespace client {

// Returns the text for any position in a line. Line breaks become spaces.
std::string markdownLine(const std::string& text);

// Returns the paragraphs and lines of the text, each line with `indent` before it and a
// line end after it. Line breaks at the end of a paragraph and empty paragraphs are left
// out.
std::string markdownParagraphs(const std::string& text, const std::string& indent);

}  // namespace client
