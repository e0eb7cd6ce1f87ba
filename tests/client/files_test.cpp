// Files that are written once, moved and swapped without replacing anything.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "cases.h"
#include "client/error.h"
#include "client/files/move_into_place.h"
#include "client/files/whole_file.h"
#include "file_systems.h"
#include "scratch_files.h"

namespace {

// Returns what the action returns, or its error.
template <class Action>
std::string outcome(const Action& action) {
    try {
        return action() ? "done" : "refused";
    } catch (const client::UserError& error) {
        return error.what();
    }
}

TEST(FinishedFile, MovesWithoutReplacing) {
    const ScratchDirectory scratch;
    for (const bool knowsLinks : {true, false}) {
        file_system::knowsRenameFlags = file_system::knowsLinks = knowsLinks;
        writeFile("old", "old");
        writeFile("part", "new");
        const auto move = [](const std::string& to) {
            return outcome([&] { return client::moveIntoPlace("part", to, "It"); });
        };
        EXPECT_EQ(move("old"), "refused");
        EXPECT_EQ(move("absent/x"), "Could not write It: No such file or directory.");
        EXPECT_EQ(readFile("old") + readFile("part"), "oldnew");
        EXPECT_EQ(move("target"), "done");
        EXPECT_EQ(readFile("target") + readFile("part"), "new");
        std::filesystem::remove("target");
    }
    file_system::knowsRenameFlags = file_system::knowsLinks = true;
}

// The check looks at the file that came out, because another program may have put it there
// at the last moment.
TEST(ReplacedFile, GoesBackIfUnexpected) {
    const ScratchDirectory scratch;
    for (const bool knowsFlags : {true, false}) {
        file_system::knowsRenameFlags = knowsFlags;
        writeFile("old", "old");
        writeFile("part", "new");
        const auto replace = [](const char* from, const char* to, const char* expected) {
            const auto isExpected = [&](const std::string& file) {
                return readFile(file) == expected;
            };
            return outcome([&] { return client::replaceFile(from, to, isExpected, "It"); });
        };
        EXPECT_EQ(replace("part", "absent", "old"), "refused");
        EXPECT_EQ(replace("part", "old", "other"), "refused");
        EXPECT_EQ(readFile("old") + readFile("part"), "oldnew");
        EXPECT_EQ(replace("part", "old", "old"), "done");
        EXPECT_EQ(readFile("old"), "new");
    }
    file_system::knowsRenameFlags = true;
}

TEST(WholeFile, MustBeRegularAndNotTooLarge) {
    const ScratchDirectory scratch;
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    writeFile("large", "");
    std::filesystem::resize_file("large", 1000000001);
    const Case cases[] = {
        {"pipe", "Cannot read pipe: Not a regular file"},
        {".", "Cannot read .: Is a directory"},
        {"absent", "Cannot read absent: No such file or directory"},
        {"large",
         "Cannot read large: its 1000000001 bytes are more than the 1000000000 that a "
         "database takes"},
    };
    expectEach(cases, [](const std::string& path) {
        return outcome([&] { return !client::readFile(path).empty(); });
    });
    EXPECT_EQ(client::readStart("large", 5), std::string(5, '\0'));
}

}  // namespace
