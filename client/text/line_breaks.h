// The line and paragraph breaks in the text of notes.
#pragma once

#include <string>
#include <string_view>

namespace client {

inline constexpr std::string_view kParagraphEnd = "\u2029";

// Returns the text with each `from`, which must not be empty, replaced by `to`.
std::string replaced(std::string_view text, std::string_view from, std::string_view to);

// Returns the text with a line feed for each line break: CR LF, CR, U+2028.
std::string withLineFeeds(const std::string& text);

}  // namespace client
