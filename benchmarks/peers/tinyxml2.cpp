#include <tinyxml2.h>

#include <cstdio>
#include <memory>

#include "peers.h"

namespace {

using tinyxml2::XMLPrinter;

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

void writeNote(XMLPrinter& printer, const SampleNote& note) {
    printer.OpenElement("div");
    printer.PushAttribute("id", note.uuid.c_str());
    const std::string noteClass = "bookmark bm-color-" + note.color;
    printer.PushAttribute("class", noteClass.c_str());
    printer.OpenElement("p");
    printer.PushAttribute("class", "bm-page");
    printer.PushText(note.page.c_str());
    printer.CloseElement();
    writeBlock(printer, "bm-text", note.text);
    writeBlock(printer, "bm-note", note.comment);
    printer.CloseElement();
}

void writeDocument(XMLPrinter& printer, NoteSource& notes) {
    printer.OpenElement("html");
    printer.OpenElement("body");
    for (std::size_t place = 0; place < notes.count(); ++place) {
        writeNote(printer, notes.at(place));
    }
    printer.CloseElement();
    printer.CloseElement();
}

std::size_t toMemory(NoteSource& notes) {
    XMLPrinter printer;
    writeDocument(printer, notes);
    return static_cast<std::size_t>(printer.CStrSize()) - 1;
}

void toFile(NoteSource& notes, const char* path) {
    const std::unique_ptr<std::FILE, decltype(&std::fclose)> file(std::fopen(path, "wb"),
                                                                  std::fclose);
    XMLPrinter printer(file.get());
    writeDocument(printer, notes);
}

}  // namespace

const peers::Peer peers::tinyxml2 = {"tinyxml2", toMemory, toFile};
