#include "device_test.h"

namespace {

using FileName = DeviceTest;

struct Name {
    std::string title;
    int taken;  // of the names that the book may get, in order
    std::string name;
};

TEST_F(FileName, KeepsSafeCharactersAndSkipsTakenNames) {
    std::string ascii, longTitle(300, 'x');
    for (char byte = 1; byte < 127; ++byte) {
        ascii += byte;
    }
    const Name names[] = {
        {ascii + "\x7f\x80\xff", 0,
         " -.0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ\\_abcdefghijklmnopqrstuvwxyz\x80\xff"},
        {"/:?", 0, kBook},
        {"", 1, kBook + " (1)"},
        {std::string(" a\0/b ", 6), 2, " ab  (2)"},
        {"a (1)", 11, "a 1 (11)"},
        {longTitle, 10, longTitle + " (10)"},
    };
    script().bookIdsByUid[kUid] = kLibraryId;
    for (const std::string directory : {"", "Notes", "Notes/"}) {
        for (const Name& each : names) {
            SCOPED_TRACE(directory + ", " + each.title);
            script().booksOfLibrary[kLibraryId].title = each.title;
            script().existing.clear();
            Exporter exporter;
            exporter.setExportDir(directory);
            for (int taken = 0; taken < each.taken; ++taken) {
                script().existing.insert(exporter.getExportFilename(kBook));
            }
            EXPECT_EQ(exporter.getExportFilename(kBook),
                      directory + "/" + each.name + ".html");
        }
    }
    script().booksOfLibrary[kLibraryId].title = "gap";
    script().existing = {"Notes/gap.html", "Notes/gap (2).html"};
    EXPECT_EQ(Exporter().getExportFilename(kBook), "Notes/gap (1).html");
}

}  // namespace
