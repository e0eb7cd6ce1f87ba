// The shared object and its C header, as other programs see them.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "files.h"
#include "process.h"
#include "scratch_directory.h"

namespace {

constexpr char kDevice[] = R"({"books": [{"hash": "ab12", "title": "Emma", "notes": [
    {"uuid": "u1", "timestamp": 1, "text": "handsome, clever, and rich"}]}]})";

TEST(SharedObject, ExportsTheInterfaceAndNothingElse) {
    const ScratchDirectory scratch;
    std::vector<std::string> names;
    for (const std::string& line :
         linesOf(run({"nm", "-D", "--defined-only", "--format=posix", LIBRARY}).out)) {
        names.push_back(line.substr(0, line.find(' ')));
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, linesOf(readFile(EXPORTED_SYMBOLS)));
}

TEST(CProgram, ExportsAndImportsThroughThePublicHeader) {
    const ScratchDirectory scratch;
    writeFile("device.json", kDevice);
    run({CLIENT, "load", "device.json"});

    const Outcome exported = run({C_CLIENT, "ab12"});
    EXPECT_EQ(exported.status, 0) << exported.err;
    EXPECT_EQ(exported.out, "mnt/ext1/Notes/Emma.html\n");
    EXPECT_NE(readFile("mnt/ext1/Notes/Emma.html").find("clever"), std::string::npos);

    std::filesystem::remove("mnt/ext1/system/config/books.db");
    EXPECT_EQ(run({C_CLIENT, "--import", "mnt/ext1/Notes/Emma.html"}).out, "1\n");
    EXPECT_EQ(run({C_CLIENT, "beef"}).status, 1);
}

}  // namespace
