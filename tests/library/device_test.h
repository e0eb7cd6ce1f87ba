// A device in a scratch directory, on the scripted platform.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "export/notes_exporter_impl.h"
#include "files.h"
#include "scratch_directory.h"
#include "script.h"

namespace library_tests {

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
    Exporter();
    int exportAll() { return export_bookmarks_to_html(kBook, {}, nullptr); }
};

std::string golden(const std::string& name);

bool startsWith(const std::string& text, const std::string& start);

// One line each.
std::string joined(const Calls& lines);

// What `write` writes inside an element `r` of a new document, without the `r` tags.
template <class Write>
std::string written(Write write) {
    std::ostringstream stream;
    Writer writer(stream);
    writer.openElt("r");
    write(writer);
    return stream.str().substr(2);
}

}  // namespace library_tests
