#include <libxml/xmlwriter.h>

#include <memory>

#include "peers.h"

namespace {

using Writer = std::unique_ptr<xmlTextWriter, decltype(&xmlFreeTextWriter)>;

const xmlChar* text(const char* bytes) { return reinterpret_cast<const xmlChar*>(bytes); }

void open(xmlTextWriter* writer, const char* element, const char* elementClass) {
    xmlTextWriterStartElement(writer, text(element));
    xmlTextWriterWriteAttribute(writer, text("class"), text(elementClass));
}

void close(xmlTextWriter* writer) { xmlTextWriterFullEndElement(writer); }

void writeBlock(xmlTextWriter* writer, const char* blockClass, const std::string& content) {
    if (!content.empty()) {
        open(writer, "div", blockClass);
        xmlTextWriterWriteElement(writer, text("p"), text(content.c_str()));
        close(writer);
    }
}

void writeNote(xmlTextWriter* writer, const SampleNote& note) {
    xmlTextWriterStartElement(writer, text("div"));
    xmlTextWriterWriteAttribute(writer, text("id"), text(note.uuid.c_str()));
    const std::string noteClass = "bookmark bm-color-" + note.color;
    xmlTextWriterWriteAttribute(writer, text("class"), text(noteClass.c_str()));
    open(writer, "p", "bm-page");
    xmlTextWriterWriteString(writer, text(note.page.c_str()));
    close(writer);
    writeBlock(writer, "bm-text", note.text);
    writeBlock(writer, "bm-note", note.comment);
    close(writer);
}

void writeDocument(xmlTextWriter* writer, NoteSource& notes) {
    xmlTextWriterSetIndent(writer, 1);
    xmlTextWriterSetIndentString(writer, text("  "));
    xmlTextWriterStartElement(writer, text("html"));
    xmlTextWriterStartElement(writer, text("body"));
    for (std::size_t place = 0; place < notes.count(); ++place) {
        writeNote(writer, notes.at(place));
    }
    xmlTextWriterEndElement(writer);
    xmlTextWriterEndElement(writer);
}

std::size_t toMemory(NoteSource& notes) {
    const std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> buffer(xmlBufferCreate(),
                                                                      xmlBufferFree);
    writeDocument(Writer(xmlNewTextWriterMemory(buffer.get(), 0), xmlFreeTextWriter).get(),
                  notes);
    return static_cast<std::size_t>(xmlBufferLength(buffer.get()));
}

void toFile(NoteSource& notes, const char* path) {
    writeDocument(Writer(xmlNewTextWriterFilename(path, 0), xmlFreeTextWriter).get(),
                  notes);
}

}  // namespace

const peers::Peer peers::libxml2 = {"libxml2", toMemory, toFile};
