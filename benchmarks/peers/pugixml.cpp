#include <pugixml.hpp>

#include "peers.h"

namespace {

constexpr unsigned kFormat = pugi::format_indent | pugi::format_no_declaration;

struct StringWriter : pugi::xml_writer {
    void write(const void* bytes, std::size_t size) override {
        text.append(static_cast<const char*>(bytes), size);
    }
    std::string text;
};

pugi::xml_node append(pugi::xml_node& parent, const char* element,
                      const char* elementClass) {
    pugi::xml_node child = parent.append_child(element);
    child.append_attribute("class") = elementClass;
    return child;
}

void appendBlock(pugi::xml_node& note, const char* blockClass, const std::string& content) {
    if (!content.empty()) {
        append(note, "div", blockClass).append_child("p").text() = content.c_str();
    }
}

void appendNote(pugi::xml_node& body, const SampleNote& note) {
    pugi::xml_node block = body.append_child("div");
    block.append_attribute("id") = note.uuid.c_str();
    block.append_attribute("class") = ("bookmark bm-color-" + note.color).c_str();
    append(block, "p", "bm-page").text() = note.page.c_str();
    appendBlock(block, "bm-text", note.text);
    appendBlock(block, "bm-note", note.comment);
}

void build(pugi::xml_document& document, NoteSource& notes) {
    pugi::xml_node body = document.append_child("html").append_child("body");
    for (std::size_t place = 0; place < notes.count(); ++place) {
        appendNote(body, notes.at(place));
    }
}

std::size_t toMemory(NoteSource& notes) {
    pugi::xml_document document;
    build(document, notes);
    StringWriter writer;
    document.save(writer, "  ", kFormat);
    return writer.text.size();
}

void toFile(NoteSource& notes, const char* path) {
    pugi::xml_document document;
    build(document, notes);
    document.save_file(path, "  ", kFormat);
}

}  // namespace

const peers::Peer peers::pugixml = {"pugixml", toMemory, toFile};
