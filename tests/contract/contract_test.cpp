#include "contract_test.h"

std::vector<Note> notesOnDevice() {
    ReaderDbManager manager;
    std::vector<Note> notes;
    for (const auto& key : manager.getBookNotesHashUUIDs(kHash, true)) {
        notes.push_back(manager.getNote(key.first));
    }
    return notes;
}

SeamContract::SeamContract() {
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
