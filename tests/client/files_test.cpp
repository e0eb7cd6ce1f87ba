// Files that are written once, moved and swapped without replacing anything.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

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
    const struct {
        const char* path;
        const char* outcome;
        const char* content;
    } rows[] = {
        {"new", "done", "content"},
        {"old", "refused", "old"},
        {"link", "refused", ""},
        {"absent/file", "Cannot write absent/file: No such file or directory", ""},
        {"old/file", "Cannot write old/file: Not a directory", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(outcome([&] { return client::writeNewFile(row.path, "content"); }),
                  row.outcome);
        EXPECT_EQ(readFile(row.path), row.content) << row.path;
    }
}

TEST(FinishedFile, TakesItsPlaceAlone) {
    const ScratchDirectory scratch;
    writeFile("old", "old");
    const auto move = [](const std::string& from, const std::string& to) {
        return outcome([&] { return client::moveIntoPlace(from, to, "It"); });
    };
    writeFile("part", "new");
    EXPECT_EQ(move("part", "old"), "refused");
    EXPECT_EQ(move("part", "absent/x"), "Could not write It: No such file or directory.");
    EXPECT_EQ(readFile("old") + readFile("part"), "oldnew");
    EXPECT_EQ(move("part", "place"), "done");
    EXPECT_EQ(readFile("place"), "new");
    EXPECT_FALSE(std::filesystem::exists("part"));
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
    EXPECT_EQ(swap("part", "old"), "refused");
}

TEST(WholeFile, RefusesWhatIsNotRegular) {
    const ScratchDirectory scratch;
    ASSERT_EQ(mkfifo("pipe", 0600), 0);
    writeFile("large", "");
    std::filesystem::resize_file("large", 1000000001);
    const struct {
        const char* path;
        const char* cause;
    } rows[] = {
        {"pipe", "Cannot read pipe: Not a regular file"},
        {".", "Cannot read .: Is a directory"},
        {"absent", "Cannot read absent: No such file or directory"},
        {"large",
         "Cannot read large: its 1000000001 bytes are more than the 1000000000 that a "
         "database takes"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(outcome([&] { return !client::readFile(row.path).empty(); }), row.cause);
    }
    EXPECT_EQ(client::readStart("large", 5), std::string(5, '\0'));
}

}  // namespace
