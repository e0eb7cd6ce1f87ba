/// @file
/// The record of one note: a bookmark, a marked passage with an optional comment, or a
/// note that carries a picture.
#pragma once

#include <json/value.h>

#include <cstdint>
#include <ctime>
#include <map>
#include <optional>
#include <string>

namespace veloran::utilities {

/// A plain value: copied, moved and destroyed freely, shared between threads only while
/// nobody modifies it. Members marked "library" are defined by notes_export; the
/// platform defines the others. Functions that return or copy text may throw
/// std::bad_alloc.
class Note {
public:
    /// The meaning of a tagged value. The platform uses further numbers.
    enum class Tag : std::int32_t {
        Uuid = 1,      ///< `str`: the note's identifier
        Anchor = 101,  ///< `json`: an object; "anchor" is the URI of the note's position
        Range = 104,   ///< `json`: an object; "begin" is the URI where the passage starts
    };

    /// One tagged value.
    struct Value {
        Value();                    ///< library: empty, stamped with the current time
        Value(const Value& other);  ///< library
        Value& operator=(const Value&) = default;  ///< copies every member
        ~Value();                                  ///< library

        std::string str;  ///< the value as text
        /// The value as JSON, only for tags whose JSON the platform uses. Other JSON is not
        /// parsed, because it may then take a hundred times the memory.
        std::optional<Json::Value> json;
        std::time_t timestamp;  ///< seconds since the Unix epoch
    };

    /// library: Returns the value under `tag`, or a shared default value (empty text, no
    /// JSON) if there is none. Never inserts. The reference is valid as long as the entry;
    /// the default, until the process exits.
    const Value& operator[](Tag tag) const;

    /// library: Returns the text under Tag::Uuid; empty if there is none.
    std::string uuid() const;

    /// library: Returns the URI of the note's position: "anchor" of Tag::Anchor, or if that
    /// is empty "begin" of Tag::Range; empty if there is neither.
    std::string getAnchorUri() const;

    /// Returns the text of the element `key` of the JSON value under `tag`; empty if the
    /// tag, its JSON value or the element is missing.
    std::string getJsonTagElement(Tag tag, const std::string& key) const;

    /// Returns the name of the note's colour; empty if it has none.
    std::string getColor() const;

    /// Returns the marked text, UTF-8; empty if there is none.
    std::string getText() const;

    /// Returns the bytes of the note's picture; empty if there is none.
    std::string getImage() const;

    /// Returns the user's comment, UTF-8; empty if there is none.
    std::string getNote() const;

    std::map<Tag, Value> tags;      ///< at most one value for each tag
    unsigned long long noteId = 0;  ///< the note's identifier in the reader database
};

}  // namespace veloran::utilities
