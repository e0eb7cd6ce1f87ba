// The streaming markup writer through which the whole document is written.
#pragma once

#include <cstddef>
#include <deque>
#include <ostream>
#include <string>

#include "writer/rewrite.h"

// Writes each element on a line of its own, indented by two spaces per enclosing element,
// and escapes text and attribute values. Everything goes to the stream at once. A failed
// stream swallows the rest of the document, and nothing else changes.
class Writer {
public:
    // Does not own the stream, and never opens, flushes or closes it.
    explicit Writer(std::ostream& stream);

    Writer& openElt(const char* name);

    // Only while the start tag of the innermost element is still open: after openElt and
    // before any content. The value may come in two parts; `rest` is null when it does not.
    Writer& writeAttr(const char* name, const char* value, const char* rest = nullptr);

    // Text content, escaped.
    Writer& writeText(const char* text);

    // Markup, written verbatim; does not affect indentation.
    Writer& writeRaw(const char* text);
    Writer& writeRaw(const char* bytes, std::size_t length);

    // Content that becomes markup as `rewriting` says.
    Writer& writeRewritten(const char* text, const markup::Rewriting& rewriting);

    // Ends the innermost element; does nothing when none is open.
    Writer& closeElt();

    // Number of elements that are open.
    std::size_t depth() const { return openElements.size(); }

    // Writes the text with its markup characters escaped, and changes nothing else.
    void write_escape(const char* text);

    // The text as write_escape writes it.
    static std::string encodeString(const char* text);

private:
    void finishStartTag();

    std::ostream* out;
    bool tagOpen = false;    // the innermost start tag still lacks its ">"
    bool endTagLast = true;  // the last tag was an end tag: the next one gets its own line
    std::deque<std::string> openElements;
};
