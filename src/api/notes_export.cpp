#include "notes_export/notes_export.h"

#include <string.h>

#include <exception>
#include <stdexcept>

#include "notes_export/notes_exporter.h"

namespace {

// Throws for null, as libstdc++ does, with every standard library.
std::string toString(const char* text) {
    if (text == nullptr) {
        throw std::logic_error("basic_string: construction from null is not valid");
    }
    return text;
}

std::function<bool(long long, long long)> toCallable(notes_exporter_before before,
                                                     void* userData) {
    if (before == nullptr) {
        return {};
    }
    return [before, userData](long long first, long long second) {
        return before(userData, first, second);
    };
}

}  // namespace

notes_exporter* new_notes_exporter() { return new veloran::NotesExporter; }

void notes_exporter_set_export_dir(notes_exporter* exporter, const char* directory) {
    exporter->setExportDir(toString(directory));
}

int notes_exporter_export_bookmarks_to_html(notes_exporter* exporter, const char* book_hash,
                                            const unsigned long long* note_ids,
                                            size_t count, notes_exporter_before before,
                                            void* user_data) {
    return exporter->export_bookmarks_to_html(
        toString(book_hash), {note_ids, note_ids + count}, toCallable(before, user_data));
}

void notes_exporter_get_exported_file_name(notes_exporter* exporter, char* buffer,
                                           size_t size, const char* book_hash) {
    const std::string name = exporter->getExportedFileName(toString(book_hash));
    if (size != 0) {
        memccpy(buffer, name.c_str(), '\0', size);
    }
}

int notes_exporter_import_from_file(notes_exporter* exporter, const char* path) try {
    return exporter->import_from_file(toString(path));
} catch (const std::exception&) {
    return -1;
}

void free_notes_exporter(notes_exporter* exporter) { delete exporter; }
