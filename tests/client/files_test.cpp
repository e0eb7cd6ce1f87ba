// Files that are written once, moved and swapped without replacing anything.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "cases.h"
#include "client/error.h"
#include "client/files/move_into_place.h"
#include "client/files/whole_file.h"
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

TEST(NewFile, NeverReplacesAnything) {
    const ScratchDirectory scratch;
    writeFile("old", "old");
    std::filesystem::create_symlink("nowhere", "link");
    const Case cases[] = {
        {"new", "done"},
        {"old", "refused"},
        {"link", "refused"},
        {"absent/file", "Cannot write absent/file: No such file or directory"},
        {"old/file", "Cannot write old/file: Not a directory"},
    };
    expectEach(cases, [](const std::string& path) {
        return outcome([&] { return client::writeNewFile(path, "content"); });
    });
    EXPECT_EQ(readFile("new") + readFile("old") + readFile("nowhere"), "contentold");
}

TEST(FinishedFile, TakesItsPlaceAlone) {
    const ScratchDirectory scratch;
    writeFile("old", "old");
    writeFile("part", "new");
    const auto move = [](const std::string& to) {
        return outcome([&] { return client::moveIntoPlace("part", to, "It"); });
    };
    EXPECT_EQ(move("old"), "refused");
    EXPECT_EQ(move("absent/x"), "Could not write It: No such file or directory.");
    EXPECT_EQ(readFile("old") + readFile("part"), "oldnew");
    EXPECT_EQ(move("place"), "done");
    EXPECT_EQ(readFile("place") + readFile("part"), "new");
}

TEST(FinishedFile, SwapsWithKnownFileAlone) {
    const ScratchDirectory scratch;
    writeFile("old", "old");
    writeFile("part", "new");
    const host::FileIdentity old = host::identityOf("old").value();
    const auto swap = [&old](const std::string& from, const std::string& to) {
        return outcome([&] { return client::swapFiles(from, to, old, "It"); });
    };
    EXPECT_EQ(swap("part", "part"), "refused");
    EXPECT_EQ(swap("part", "absent"), "refused");
    EXPECT_EQ(swap("absent", "old"), "Could not write It: No such file or directory.");
    EXPECT_EQ(readFile("old") + readFile("part"), "oldnew");
    EXPECT_EQ(swap("part", "old"), "done");
    EXPECT_EQ(readFile("old") + readFile("part"), "newold");
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
