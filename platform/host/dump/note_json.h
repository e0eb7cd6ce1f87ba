// The JSON text of a tag.
#pragma once

#include <json/value.h>

#include <memory>
#include <optional>
#include <string>

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

    // The value that `text` spells, whatever the locale; nothing when it is not JSON as
    // above, or longer than a position has reason to be (4 KiB).
    std::optional<Json::Value> parse(const std::string& text);

private:
    struct Reader;

    template <class Handler>
    bool read(const std::string& text, Handler& handler);

    std::unique_ptr<Reader> reader_;
};

}  // namespace host
