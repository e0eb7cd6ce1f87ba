// The rendering job, for measurements of time and of instructions.
#pragma once

#include <ostream>

#include "export/fail_stop_file.h"
#include "export/notes_exporter_impl.h"
#include "memory_book.h"

// Writes the same document of these notes as the peers.
inline void render(std::ostream& stream, const RecordedNotes& notes) {
    Writer writer(stream);
    writer.openElt("html").openElt("body");
    for (const veloran::utilities::Note& note : notes) {
        veloran::NotesExporterImpl::writeBookmark(writer, note);
    }
    writer.closeElt().closeElt();
}

inline void render(const char* path, const RecordedNotes& notes) {
    veloran::FailStopFile file(path);
    render(file, notes);
    file.close();
}
