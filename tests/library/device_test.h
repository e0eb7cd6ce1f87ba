// A device in a scratch directory, on the scripted platform.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "export/notes_exporter_impl.h"
#include "scratch_files.h"
#include "script.h"

using scripted::script;
using Calls = std::vector<std::string>;

inline const std::string kBook = "626f6f6b";  // the sample book's hash
inline const std::string kUid = "book";       // its raw bytes
constexpr long long kItem = 42;               // its item identifier
constexpr long long kLibraryId = 7;
inline const std::string kFile = "Notes/Dune  Sons.html";  // its first export

// Each test has its own scratch directory and script, uses relative paths, and must close
// all connections and databases.
class DeviceTest : public testing::Test {
protected:
    DeviceTest() { script() = {}; }
    void TearDown() override { EXPECT_EQ(script().openHandles, 0); }

private:
    ScratchDirectory scratch_;
};

// Adds the sample book, whose export is golden/full_export.html: four notes with
// identifiers 11 to 14, a style sheet and a payload.
inline void loadSampleBook() {
    script().bookIdsByUid[kUid] = kLibraryId;
    script().booksOfLibrary[kLibraryId] = {"Dune & \"Sons\"", "Frank <Herbert>"};
    script().itemIds[kBook] = kItem;
    script().fastHashes[kItem] = "626F6F6B";
    script().payload = "records of the book and its notes, in the engine's own form";
    script().hashText = "abc123";
    script().pages = {{"at 12.9", 12.9}, {"at 3", 3.0}};
    const std::string image = "\xFF\xD8\xFF\xE0";
    scripted::addNote(kBook, {11, "u-11", "yellow", "first <b>\xE2\x80\xA9second", image,
                              "it's\nfine\xE2\x80\xA8\"now\"", "at 12.9", "at 3"});
    scripted::addNote(kBook, {12, "u-12"});
    scripted::addNote(
        kBook, {13, "a&b", "x\"y", "", "", "\xCE\xB1\nonly\tthis", "nowhere", "at 3"});
    scripted::addNote(kBook, {14, "", "red", "", image, "", "", "at 3"});
    writeFile(NOTES_EXPORT_DEVICE_ROOT "/system/reader/notes.css",
              "p { margin: 0 }\na > b::after { content: \"&\" }");
}

// An exporter that writes into Notes/, with an empty record of calls.
struct Exporter : veloran::NotesExporterImpl {
    Exporter() {
        setExportDir("Notes");
        script().calls.clear();
    }
    int exportAll() { return export_bookmarks_to_html(kBook, {}, nullptr); }
};

inline std::string golden(const std::string& name) {
    return readFile(GOLDEN_DIR "/" + name);
}

inline bool startsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

using Ids = std::vector<unsigned long long>;

// Returns the identifiers of the rendered notes, in order.
inline Ids renderedIds() {
    Ids ids;
    for (const std::string& call : script().calls) {
        if (call.find("::getColor()") != std::string::npos) {
            ids.push_back(std::stoull(call.substr(call.find('(') + 1)));
        }
    }
    return ids;
}

// Returns the calls, one line each.
inline std::string joined(const Calls& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text;
}
