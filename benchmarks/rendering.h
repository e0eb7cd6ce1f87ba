// What is measured of rendering, by the clock and in instructions.
#pragma once

#include <ostream>
#include <vector>

#include "export/fail_stop_file.h"
#include "export/notes_exporter_impl.h"
#include "note_source.h"

using RecordedNotes = std::vector<veloran::utilities::Note>;

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

// The same notes for a peer that renders them: it asks each record for the same things.
class NotesOfRecords : public NoteSource {
public:
    explicit NotesOfRecords(const RecordedNotes& records)
        : NoteSource(records.size()), records_(records) {}

    const SampleNote& at(std::size_t place) override {
        const veloran::utilities::Note& record = records_[place];
        note_.color = record.getColor();
        note_.uuid = record.uuid();
        note_.page = veloran::NotesExporterImpl::getNotePage(record);
        note_.text = record.getText();
        note_.picture = record.getImage();
        note_.comment = record.getNote();
        return note_;
    }

private:
    const RecordedNotes& records_;
    SampleNote note_;
};
