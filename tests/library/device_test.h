// A device in a scratch directory, on the scripted platform.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "export/notes_exporter_impl.h"
#include "files.h"
#include "scratch_directory.h"
#include "script.h"

using scripted::script;
using Calls = std::vector<std::string>;

inline const std::string kBook = "626f6f6b";  // the sample book's hash
inline const std::string kUid = "book";       // its raw bytes
constexpr long long kItem = 42;               // its item identifier
constexpr long long kLibraryId = 7;
inline const std::string kFile = "Notes/Dune  Sons.html";  // its first export

// Each test works in a scratch directory of its own, with relative paths and a fresh
// script, and leaves no connection and no database open.
class DeviceTest : public testing::Test {
protected:
    DeviceTest() { script() = {}; }
    void TearDown() override { EXPECT_EQ(script().openHandles, 0); }

private:
    ScratchDirectory scratch_;
};

// Puts the sample book, whose export is golden/full_export.html, on the device: four notes
// with identifiers 11 to 14, a style sheet and a payload.
void loadSampleBook();

// An exporter that writes into Notes/, with an empty record of calls.
struct Exporter : veloran::NotesExporterImpl {
    Exporter() {
        setExportDir("Notes");
        script().calls.clear();
    }
    int exportAll() { return export_bookmarks_to_html(kBook, {}, nullptr); }
};

std::string golden(const std::string& name);

bool startsWith(const std::string& text, const std::string& start);

// The identifiers of the notes that were rendered, in order.
using Ids = std::vector<unsigned long long>;
Ids renderedIds();

// One line each.
std::string joined(const Calls& lines);
