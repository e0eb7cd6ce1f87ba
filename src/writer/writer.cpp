#include "writer/writer.h"

#include <cstring>

#include "writer/put.h"

namespace {

using markup::put;

void putRewritten(std::ostream& stream, const char* text,
                  const markup::Rewriting& rewriting) {
    markup::rewrite(text, rewriting,
                    [&stream](std::string_view unchanged, std::string_view markup) {
                        put(stream, unchanged, markup);
                    });
}

void startLine(std::ostream& stream, std::size_t depth) {
    constexpr std::string_view kLineStart = "\n                ";
    const std::size_t length = 1 + 2 * depth;
    put(stream, kLineStart.substr(0, length));
    for (std::size_t done = kLineStart.size(); done < length; ++done) {
        put(stream, " ");
    }
}

}  // namespace

Writer::Writer(std::ostream& stream) : out(&stream) {}

Writer& Writer::openElt(const char* name) {
    finishStartTag();
    if (!openElements.empty()) {
        startLine(*out, openElements.size());
    }
    openElements.emplace_back(name);
    put(*out, "<", openElements.back());
    tagOpen = true;
    endTagLast = false;
    return *this;
}

Writer& Writer::writeAttr(const char* name, const char* value, const char* rest) {
    put(*out, " ", name, "=\"");
    write_escape(value);
    if (rest != nullptr) {
        write_escape(rest);
    }
    put(*out, "\"");
    return *this;
}

Writer& Writer::writeText(const char* text) {
    return writeRewritten(text, markup::kEscaping);
}

Writer& Writer::writeRewritten(const char* text, const markup::Rewriting& rewriting) {
    finishStartTag();
    putRewritten(*out, text, rewriting);
    return *this;
}

Writer& Writer::writeRaw(const char* text) { return writeRaw(text, std::strlen(text)); }

Writer& Writer::writeRaw(const char* bytes, std::size_t length) {
    finishStartTag();
    put(*out, std::string_view(bytes, length));
    return *this;
}

Writer& Writer::closeElt() {
    if (openElements.empty()) {
        return *this;
    }
    finishStartTag();
    if (endTagLast) {
        startLine(*out, openElements.size() - 1);
    }
    put(*out, "</", openElements.back(), ">");
    openElements.pop_back();
    endTagLast = true;
    return *this;
}

void Writer::write_escape(const char* text) { putRewritten(*out, text, markup::kEscaping); }

std::string Writer::encodeString(const char* text) {
    std::string escaped;
    markup::rewrite(text, markup::kEscaping,
                    [&escaped](std::string_view unchanged, std::string_view markup) {
                        escaped.append(unchanged).append(markup);
                    });
    return escaped;
}

void Writer::finishStartTag() {
    if (tagOpen) {
        put(*out, ">");
        tagOpen = false;
    }
}
