// The sample device's books, out to documents and into another device.
#include <gtest/gtest.h>

#include <filesystem>

#include "process.h"
#include "scratch_directory.h"

namespace {

class SampleDevice : public testing::Test {
protected:
    SampleDevice() {
        std::filesystem::create_directory("one");
        std::filesystem::create_directory("two");
        run({CLIENT, "-C", "one", "load", SAMPLE_DEVICE "/device.json"});
        for (const std::string& book : linesOf(run({CLIENT, "-C", "one", "books"}).out)) {
            hashes_.push_back(book.substr(0, book.find('\t')));
        }
        EXPECT_GE(hashes_.size(), 5U);
    }

    static std::string exported(const std::string& device, const std::string& hash) {
        const Outcome outcome = run({CLIENT, "-C", device, "export", hash});
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        return outcome.out.substr(0, outcome.out.find('\n'));
    }

    // The records that a document carries, found with tools that know nothing of the
    // library.
    static std::string records(const std::string& document) {
        return run({"sh", "-c",
                    "xmllint --nonet --xpath 'string(//*[local-name()=\"script\"])' \"$0\""
                    " | base64 -d | gunzip | jq .",
                    document})
            .out;
    }

    ScratchDirectory scratch_;
    std::vector<std::string> hashes_;
};

TEST_F(SampleDevice, ComesBackWholeOnAnotherDevice) {
    std::size_t total = 0;
    for (const std::string& hash : hashes_) {
        const std::string document = exported("one", hash);
        const auto notes = linesOf(run({CLIENT, "-C", "one", "notes", hash}).out).size();
        total += notes;
        EXPECT_EQ(run({CLIENT, "-C", "two", "import", document}).out,
                  std::to_string(notes) + "\n");
        EXPECT_EQ(run({CLIENT, "-C", "two", "import", document}).out, "0\n");
        EXPECT_EQ(records(exported("two", hash)), records(document));
        EXPECT_NE(records(document).find("\"uuid\""), std::string::npos);
    }
    EXPECT_GE(total, 60U);
}

TEST_F(SampleDevice, GivesWellFormedDocuments) {
    for (const std::string& hash : hashes_) {
        const Outcome outcome =
            run({"xmllint", "--noout", "--nonet", exported("one", hash)});
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(outcome.err, "");
    }
}

}  // namespace
