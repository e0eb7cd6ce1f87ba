// A streaming writer of markup.
#pragma once

#include <cstddef>
#include <deque>
#include <ostream>
#include <string>

#include "writer/rewrite.h"

// Writes each element on a line of its own, indented by two spaces per enclosing element,
// and escapes text and attribute values. Each call writes to the stream at once. After the
// stream fails, calls have no effect on it.
class Writer {
public:
    // Does not own, flush or close the stream.
    explicit Writer(std::ostream& stream);

    Writer& openElt(const char* name);

    // Writes an attribute; only valid after openElt and before any content. `rest` is the
    // second part of the value, or null.
    Writer& writeAttr(const char* name, const char* value, const char* rest = nullptr);

    // Writes text content, escaped.
    Writer& writeText(const char* text);

    // Writes markup verbatim; does not affect indentation.
    Writer& writeRaw(const char* text);
    Writer& writeRaw(const char* bytes, std::size_t length);

    // Writes content with the replacements of `rewriting`.
    Writer& writeRewritten(const char* text, const markup::Rewriting& rewriting);

    // Ends the innermost element; does nothing if none is open.
    Writer& closeElt();

    // Returns the number of open elements.
    std::size_t depth() const { return openElements.size(); }

    // Writes the text escaped, without ending the start tag.
    void write_escape(const char* text);

    // Returns the text escaped.
    static std::string encodeString(const char* text);

private:
    void finishStartTag();

    std::ostream* out;
    bool tagOpen = false;    // the innermost start tag has no ">" yet
    bool endTagLast = true;  // an end tag was last, so the next one gets its own line
    std::deque<std::string> openElements;
};
