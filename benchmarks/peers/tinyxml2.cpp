#include <tinyxml2.h>

#include <cstdio>
#include <memory>

#include "export/notes_exporter_impl.h"
#include "peers.h"

namespace {

using tinyxml2::XMLPrinter;
using veloran::NotesExporterImpl;
using veloran::utilities::Note;

void writeElement(XMLPrinter& printer, const char* name, const std::string& content) {
    printer.OpenElement(name);
    printer.PushText(content.c_str());
    printer.CloseElement();
}

void writeBlock(XMLPrinter& printer, const char* blockClass, const std::string& content) {
    if (!content.empty()) {
        printer.OpenElement("div");
        printer.PushAttribute("class", blockClass);
        writeElement(printer, "p", content);
        printer.CloseElement();
    }
}

void writeNote(XMLPrinter& printer, const Note& note) {
    printer.OpenElement("div");
    printer.PushAttribute("id", note.uuid().c_str());
    const std::string noteClass = "bookmark bm-color-" + note.getColor();
    printer.PushAttribute("class", noteClass.c_str());
    printer.OpenElement("p");
    printer.PushAttribute("class", "bm-page");
    printer.PushText(NotesExporterImpl::getNotePage(note).c_str());
    printer.CloseElement();
    writeBlock(printer, "bm-text", note.getText());
    writeBlock(printer, "bm-note", note.getNote());
    printer.CloseElement();
}

void writeDocument(XMLPrinter& printer, const RecordedNotes& notes) {
    printer.OpenElement("html");
    printer.OpenElement("body");
    for (const Note& note : notes) {
        writeNote(printer, note);
    }
    printer.CloseElement();
    printer.CloseElement();
}

std::size_t toMemory(const RecordedNotes& notes) {
    XMLPrinter printer;
    writeDocument(printer, notes);
    return static_cast<std::size_t>(printer.CStrSize()) - 1;
}

void toFile(const RecordedNotes& notes, const char* path) {
    const std::unique_ptr<std::FILE, decltype(&std::fclose)> file(std::fopen(path, "wb"),
                                                                  std::fclose);
    XMLPrinter printer(file.get());
    writeDocument(printer, notes);
}

}  // namespace

const peers::Peer peers::tinyxml2 = {"tinyxml2", toMemory, toFile};
