// Plain text in Markdown, so that a CommonMark renderer shows just this text. Renderers
// with tables, mathematics, tags or other additions find none of these in it either.
#pragma once

#include <string>

namespace client {

// The text as it stands anywhere in a line, or is a line. What breaks lines becomes a
// space.
std::string markdownLine(const std::string& text);

// The text's paragraphs and lines, each line after `indent`, with a line end after the
// last. Line breaks at the end of a paragraph and empty paragraphs are left out. Empty when
// nothing remains.
std::string markdownParagraphs(const std::string& text, const std::string& indent);

}  // namespace client
