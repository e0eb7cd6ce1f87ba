// The line and paragraph breaks in the text of notes.
#pragma once

#include <string>
#include <string_view>

namespace client {

inline constexpr std::string_view kParagraphEnd = "\u2029";

// Returns the text with each `from`, which must not be empty, replaced by `to`.
std::string replaced(std::string_view text, std::string_view from, std::string_view to);

// Removes the first line from the text, and returns it without its line feed.
std::string_view takeLine(std::string_view& text);

// Returns the text with a line feed at the end of each line, which may be CR LF, CR CR LF
// (from programs that convert line ends twice), or CR.
std::string withLineFeedEnds(std::string text);

// Returns the text with a line feed for each line break: a line's end, or U+2028.
std::string withLineFeeds(const std::string& text);

}  // namespace client
