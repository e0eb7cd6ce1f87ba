// What is measured of rendering, by the clock and in instructions.
#pragma once

#include <ostream>

#include "export/fail_stop_file.h"
#include "export/notes_exporter_impl.h"
#include "memory_book.h"

// Writes the document of these notes that the peers write.
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
