// An exporter of one book, through the C interface.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "notes_export/notes_export.h"

class CExporter {
public:
    CExporter(std::string bookHash, const char* directory) : hash_(std::move(bookHash)) {
        notes_exporter_set_export_dir(handle(), directory);
    }

    notes_exporter* handle() const { return handle_.get(); }

    int exportNotes(notes_exporter_before before = nullptr, void* userData = nullptr,
                    const std::vector<unsigned long long>& ids = {}) const {
        return notes_exporter_export_bookmarks_to_html(handle(), hash_.c_str(),
                                                       ids.empty() ? nullptr : ids.data(),
                                                       ids.size(), before, userData);
    }

    std::string fileName() const {
        char name[256];
        notes_exporter_get_exported_file_name(handle(), name, sizeof name, hash_.c_str());
        return name;
    }

    int importFile(const char* path) const {
        return notes_exporter_import_from_file(handle(), path);
    }

private:
    std::string hash_;
    std::unique_ptr<notes_exporter, decltype(&free_notes_exporter)> handle_{
        new_notes_exporter(), free_notes_exporter};
};
