// A device with two books, for the contract tests.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contract_device.h"
#include "scratch_files.h"
#include "utilities/reader_db_manager.h"

using veloran::utilities::Note;
using veloran::utilities::ReaderDbManager;

inline const std::string kHash = "00ff7a";  // of the book that has notes
inline const std::string kAnyBytes("\0\xff\xd8 \x80'\"", 7);
constexpr int kUnknown = 987654;

// Returns the notes of the book kHash.
inline std::vector<Note> notesOnDevice() {
    ReaderDbManager manager;
    std::vector<Note> notes;
    for (const auto& key : manager.getBookNotesHashUUIDs(kHash, true)) {
        notes.push_back(manager.getNote(key.first));
    }
    return notes;
}

class SeamContract : public testing::Test {
protected:
    SeamContract() {
        scratch_.require(readerDatabasePath());
        startEmptyDevice();
        putOnDevice({"aa", "Other", "", "", {}});
        putOnDevice({kHash,
                     "Dune",
                     "Frank Herbert",
                     "Books/dune.epub",
                     {{"uuid-b", "yellow", "text", "comment", kAnyBytes, uriOfPage(2.5)},
                      {"uuid-a", "", "more", "", "", ""}}});
        book_ = static_cast<unsigned long long>(ReaderDbManager().getItemId(kHash));
    }

    const ScratchDirectory scratch_;
    unsigned long long book_ = 0;  // item identifier of the book kHash
};
