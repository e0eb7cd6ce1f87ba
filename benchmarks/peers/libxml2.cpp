#include <libxml/xmlwriter.h>

#include <memory>

#include "export/notes_exporter_impl.h"
#include "peers.h"

namespace {

using veloran::NotesExporterImpl;
using veloran::utilities::Note;
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

void writeNote(xmlTextWriter* writer, const Note& note) {
    xmlTextWriterStartElement(writer, text("div"));
    xmlTextWriterWriteAttribute(writer, text("id"), text(note.uuid().c_str()));
    const std::string noteClass = "bookmark bm-color-" + note.getColor();
    xmlTextWriterWriteAttribute(writer, text("class"), text(noteClass.c_str()));
    open(writer, "p", "bm-page");
    xmlTextWriterWriteString(writer, text(NotesExporterImpl::getNotePage(note).c_str()));
    close(writer);
    writeBlock(writer, "bm-text", note.getText());
    writeBlock(writer, "bm-note", note.getNote());
    close(writer);
}

void writeDocument(xmlTextWriter* writer, const RecordedNotes& notes) {
    xmlTextWriterSetIndent(writer, 1);
    xmlTextWriterSetIndentString(writer, text("  "));
    xmlTextWriterStartElement(writer, text("html"));
    xmlTextWriterStartElement(writer, text("body"));
    for (const Note& note : notes) {
        writeNote(writer, note);
    }
    xmlTextWriterEndElement(writer);
    xmlTextWriterEndElement(writer);
}

std::size_t toMemory(const RecordedNotes& notes) {
    const std::unique_ptr<xmlBuffer, decltype(&xmlBufferFree)> buffer(xmlBufferCreate(),
                                                                      xmlBufferFree);
    writeDocument(Writer(xmlNewTextWriterMemory(buffer.get(), 0), xmlFreeTextWriter).get(),
                  notes);
    return static_cast<std::size_t>(xmlBufferLength(buffer.get()));
}

void toFile(const RecordedNotes& notes, const char* path) {
    writeDocument(Writer(xmlNewTextWriterFilename(path, 0), xmlFreeTextWriter).get(),
                  notes);
}

}  // namespace

const peers::Peer peers::libxml2 = {"libxml2", toMemory, toFile};
