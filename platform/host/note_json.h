// The JSON text of a tag.
#pragma once

#include <json/value.h>

#include <memory>
#include <optional>
#include <string>

namespace Json {
class CharReader;
}

namespace host {

// Reads one text after the other, which is much cheaper than to begin anew for each. Serves
// one thread at a time.
class NoteJson {
public:
    NoteJson();
    ~NoteJson();
    NoteJson(const NoteJson&) = delete;
    NoteJson& operator=(const NoteJson&) = delete;

    // Whether `text` is one whole JSON value (RFC 8259, UTF-8) that nests no deeper than 32
    // levels. Takes little memory, whatever the text.
    bool isJson(const std::string& text);

    // The value that `text` spells; nothing when it is not JSON as above, or longer than
    // any tag of a note has reason to be (256 KiB).
    std::optional<Json::Value> parse(const std::string& text);

private:
    struct Validator;

    std::unique_ptr<Validator> validator_;
    std::unique_ptr<Json::CharReader> parser_;
};

}  // namespace host
