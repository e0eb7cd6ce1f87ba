// The JSON text of a tag.
#pragma once

#include <json/value.h>

#include <memory>
#include <optional>
#include <string>

namespace host {

// Parses one text after another with one parser, which is much faster than one parser for
// each. Serves one thread at a time.
class NoteJson {
public:
    NoteJson();
    ~NoteJson();
    NoteJson(const NoteJson&) = delete;
    NoteJson& operator=(const NoteJson&) = delete;

    // Returns whether `text` is one JSON value (RFC 8259, UTF-8) with at most 32 levels.
    // Takes little memory for any text.
    bool isJson(const std::string& text);

    // Returns the value, read alike in every locale; nullopt if the text is not JSON as
    // above, or longer than 4 KiB, because a position is short.
    std::optional<Json::Value> parse(const std::string& text);

private:
    struct Reader;

    template <class Handler>
    bool read(const std::string& text, Handler& handler);

    std::unique_ptr<Reader> reader_;
};

}  // namespace host
