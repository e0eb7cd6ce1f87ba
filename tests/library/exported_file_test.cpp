#include <sys/resource.h>

#include <csignal>

#include "device_test.h"

namespace {

using ExportedFile = DeviceTest;

Calls callsOfExport() {
    Exporter exporter;
    EXPECT_EQ(exporter.exportAll(), 0);
    return script().calls;
}

TEST_F(ExportedFile, HashBeyondBufferIsIgnored) {
    const std::pair<int, std::size_t> cases[] = {
        // reported and trusted length
        {-1, 0}, {0, 0}, {1, 1}, {16, 16}, {256, 256}, {257, 0}, {1000, 0}};
    loadSampleBook();
    script().hashText = std::string(300, 'h');
    for (const auto& [reported, trusted] : cases) {
        SCOPED_TRACE(reported);
        script().hashResult = reported;
        const std::string mark =
            "DbManager::SetFileProp(" + std::string(trusted, 'h') + ", 7, 2)";
        EXPECT_EQ(callsOfExport().back(), mark);

        Exporter exporter;
        EXPECT_EQ(exporter.import_from_file("in.html"), 0);
        EXPECT_EQ(script().calls.back(), trusted > 0 ? mark : "FastBookHash(in.html, 256)");
    }
}

TEST_F(ExportedFile, IsOpenedBeforeTitleLookup) {
    loadSampleBook();
    Calls before;  // before the file exists
    script().onCall = [&](const std::string& call) {
        if (!std::filesystem::exists(kFile)) {
            before.push_back(call);
        }
    };
    callsOfExport();
    EXPECT_EQ(before.back(), "oa_buildpath(" + kFile + ")");
}

TEST_F(ExportedFile, TruncatesFileThatAppearsMeanwhile) {
    loadSampleBook();
    script().onCall = [](const std::string& call) {
        if (startsWith(call, "oa_buildpath")) {
            writeFile(kFile, std::string(10000, 'x'));
        }
    };
    callsOfExport();
    EXPECT_EQ(withoutDates(readFile(kFile)), golden("full_export.html"));
}

TEST_F(ExportedFile, CreationFailureChangesOnlyTheMark) {
    loadSampleBook();
    Calls expected = callsOfExport();
    expected.back() = "DbManager::SetFileProp(, 7, 2)";
    std::filesystem::remove_all("Notes");
    writeFile("Notes", "not a directory");
    EXPECT_EQ(joined(callsOfExport()), joined(expected));
    EXPECT_EQ(readFile("Notes"), "not a directory");
}

TEST_F(ExportedFile, ZeroBytePathIsNotHashed) {
    loadSampleBook();
    writeFile("Notes", "another file");
    Exporter exporter;
    exporter.setExportDir(std::string("Notes\0", 6));
    EXPECT_EQ(exporter.exportAll(), 0);
    EXPECT_EQ(exporter.import_from_file(std::string("Notes\0", 6)), 0);
    EXPECT_EQ(readFile("Notes"), "another file");
    for (const std::string& call : script().calls) {
        EXPECT_FALSE(startsWith(call, "FastBookHash")) << call;
    }
}

// Limits the size of every file that this process writes.
void limitFileSize(rlim_t bytes) {
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
}

TEST_F(ExportedFile, StopsAtFirstFailedWrite) {
    loadSampleBook();
    for (unsigned long long id = 100; id < 400; id++) {
        scripted::addNote(kBook, {id, "", "", std::string(2000, 'x'), "", "", "at 12.9"});
    }
    const Calls expected = callsOfExport();
    const std::string whole = withoutDates(readFile(kFile));
    std::signal(SIGXFSZ, SIG_IGN);
    for (const rlim_t room : {0U, 1U, 4096U, 262143U, 262144U, 262145U, 400000U}) {
        for (const std::string& roomAgainAt :
             {std::string("Note(399)::getText()"), "FastBookHash(" + kFile + ", 256)"}) {
            SCOPED_TRACE(std::to_string(room) + " bytes, more at " + roomAgainAt);
            std::filesystem::remove(kFile);
            script().onCall = [&](const std::string& call) {
                if (startsWith(call, "oa_buildpath")) {
                    limitFileSize(room);
                } else if (call == roomAgainAt) {
                    limitFileSize(RLIM_INFINITY);
                }
            };
            EXPECT_EQ(joined(callsOfExport()), joined(expected));
            EXPECT_EQ(std::filesystem::file_size(kFile), room);
            EXPECT_TRUE(startsWith(whole, withoutDates(readFile(kFile))));
        }
    }
}

}  // namespace
