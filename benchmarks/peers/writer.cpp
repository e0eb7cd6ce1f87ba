#include "writer/writer.h"

#include <fstream>
#include <sstream>

#include "export/fail_stop_file.h"
#include "peers.h"

namespace {

void writeBlock(Writer& writer, const char* blockClass, const std::string& content) {
    if (!content.empty()) {
        writer.openElt("div").writeAttr("class", blockClass);
        writer.openElt("p").writeText(content.c_str()).closeElt().closeElt();
    }
}

void writeNote(Writer& writer, const SampleNote& note) {
    const std::string noteClass = "bookmark bm-color-" + note.color;
    writer.openElt("div").writeAttr("id", note.uuid.c_str());
    writer.writeAttr("class", noteClass.c_str());
    writer.openElt("p").writeAttr("class", "bm-page").writeText(note.page.c_str());
    writer.closeElt();
    writeBlock(writer, "bm-text", note.text);
    writeBlock(writer, "bm-note", note.comment);
    writer.closeElt();
}

void writeDocument(std::ostream& stream, NoteSource& notes) {
    Writer writer(stream);
    writer.openElt("html").openElt("body");
    for (std::size_t place = 0; place < notes.count(); ++place) {
        writeNote(writer, notes.at(place));
    }
    writer.closeElt().closeElt();
}

std::size_t toMemory(NoteSource& notes) {
    std::ostringstream stream;
    writeDocument(stream, notes);
    return static_cast<std::size_t>(stream.tellp());
}

void toFile(NoteSource& notes, const char* path) {
    veloran::FailStopFile file(path);
    writeDocument(file, notes);
    file.close();
}

}  // namespace

const peers::Peer peers::writer = {"writer", toMemory, toFile};
