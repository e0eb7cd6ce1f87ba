#include "writer/writer.h"

#include <cstring>
#include <utility>

#include "writer/rewrite.h"

namespace {

// Unformatted output: neither a locale nor a field width of the stream can change a byte,
// and a stream that has failed passes nothing on.
void put(std::ostream& stream, const char* bytes, std::size_t length) {
    stream.write(bytes, static_cast<std::streamsize>(length));
}

void put(std::ostream& stream, const char* text) { put(stream, text, std::strlen(text)); }

}  // namespace

Writer::Writer(std::ostream& stream) : out(&stream) {}

Writer& Writer::openElt(const char* name) {
    finishStartTag();
    if (!openElements.empty()) {
        put(*out, "\n");
    }
    indent();
    put(*out, "<");
    put(*out, name);
    openElements.emplace_back(name);
    tagOpen = true;
    endTagLast = false;
    return *this;
}

Writer& Writer::writeAttr(const char* name, const char* value) {
    put(*out, " ");
    put(*out, name);
    put(*out, "=\"");
    write_escape(value);
    put(*out, "\"");
    return *this;
}

Writer& Writer::writeText(const char* text) {
    finishStartTag();
    write_escape(text);
    return *this;
}

Writer& Writer::writeRaw(const char* text) {
    finishStartTag();
    put(*out, text);
    return *this;
}

Writer& Writer::closeElt() {
    if (openElements.empty()) {
        return *this;
    }
    finishStartTag();
    const std::string name = std::move(openElements.back());
    openElements.pop_back();
    if (endTagLast) {
        put(*out, "\n");
        indent();
    }
    endTagLast = true;
    put(*out, "</");
    put(*out, name.data(), name.size());
    put(*out, ">");
    return *this;
}

void Writer::write_escape(const char* text) {
    markup::rewrite(text, markup::entityAt, [this](const char* bytes, std::size_t length) {
        put(*out, bytes, length);
    });
}

std::string Writer::encodeString(const char* text) {
    std::string escaped;
    markup::rewrite(text, markup::entityAt,
                    [&escaped](const char* bytes, std::size_t length) {
                        escaped.append(bytes, length);
                    });
    return escaped;
}

void Writer::finishStartTag() {
    if (tagOpen) {
        put(*out, ">");
        tagOpen = false;
    }
}

void Writer::indent() {
    for (std::size_t level = 0; level < openElements.size(); ++level) {
        put(*out, "  ");
    }
}
