// The tag numbers that this platform uses. Tags with other numbers are kept unchanged.
#pragma once

#include <cstdint>

namespace host {

enum NoteTag : std::int32_t {
    kUuidTag = 1,       // text: the note's uuid; timestamp: when the note was made
    kAnchorTag = 101,   // JSON object: "anchor" is the URI of the note's position
    kColorTag = 102,    // text: the name of the colour
    kTextTag = 103,     // text: the marked passage
    kRangeTag = 104,    // JSON object: "begin" and "end" are the URIs of the passage's ends
    kCommentTag = 105,  // text: the user's comment
    kImageTag = 106,    // text: the bytes of the picture
};

}  // namespace host
