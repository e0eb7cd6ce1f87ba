// Which notes an export writes, and in which order.
#pragma once

#include <ctime>
#include <set>
#include <string>
#include <unordered_map>

#include "client/pages/export_request.h"
#include "notes_export/notes_export.h"

struct NoteSelection {
    bool isEmpty = false;              // no note is to be written
    std::set<unsigned long long> ids;  // of the notes; empty: all, unless `isEmpty`
    notes_exporter_before before = nullptr;
    std::unordered_map<long long, std::time_t> timestamps = {};  // what `before` looks at
};

NoteSelection selectNotes(const std::string& bookHash, const ExportRequest& request);

// Complains when one of the request's identifiers is that of none of the book's notes.
void complainUnlessNotesExist(const std::string& bookHash, const ExportRequest& request);
