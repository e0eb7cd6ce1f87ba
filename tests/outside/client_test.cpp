// The client as a process, on devices of its own.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "files.h"
#include "process.h"
#include "scratch_directory.h"

namespace {

constexpr char kWhale[] = "00000000000000000000000000000001";

constexpr char kDevice[] = R"({"style_sheet": "s.css", "books": [
  {"hash": "00000000000000000000000000000001", "title": "The Whale: or, \u201cLeviathan\u201d",
   "author": "H. M.", "path": "/mnt/ext1/Books/whale.epub",
   "notes": [
     {"uuid": "u1", "timestamp": 100, "page": 100000, "color": "yellow", "text": "thirty\tand"},
     {"uuid": "u2", "timestamp": 300, "page": 4.5, "comment": "two\nlines"},
     {"uuid": "u3", "timestamp": 200, "image": "p.jpg"}]},
  {"hash": "00000000000000000000000000000002", "title": "Second"}]})";

class Client : public testing::Test {
protected:
    Client() {
        writeFile("device.json", kDevice);
        writeFile("s.css", "p { margin: 0 }");
        writeFile("p.jpg", "\xFF\xD8\xFF");
        std::filesystem::create_directory("one");
        std::filesystem::create_directory("two");
    }

    static Outcome client(std::vector<std::string> words) {
        words.insert(words.begin(), CLIENT);
        return run(words);
    }

    // What a command that succeeds prints, its last line break left out.
    static std::string result(const std::vector<std::string>& words) {
        const Outcome outcome = client(words);
        EXPECT_EQ(outcome.status, 0) << outcome.err;
        EXPECT_EQ(outcome.err, "");
        return outcome.out.substr(0, outcome.out.size() - 1);
    }

    static std::string order(const std::string& document) {
        std::string uuids;
        for (auto at = document.find("<div id=\""); at != std::string::npos;
             at = document.find("<div id=\"", at + 1)) {
            uuids += document.substr(at + 9, 2) + " ";
        }
        return uuids;
    }

    ScratchDirectory scratch_;
};

TEST_F(Client, CarriesNotesFromOneDeviceToAnother) {
    EXPECT_EQ(result({"-C", "one", "load", "device.json"}), "3");
    EXPECT_EQ(result({"-C", "one", "load", "device.json"}), "0");
    EXPECT_EQ(result({"-C", "one", "books"}),
              std::string(kWhale) +
                  "\tThe Whale: or, \u201cLeviathan\u201d\tH. M.\n"
                  "00000000000000000000000000000002\tSecond\t");
    const std::string notes = "1\t100000\tyellow\tthirty and\n2\t4.5\t\t\n3\t\t\t";
    EXPECT_EQ(result({"-C", "one", "notes", kWhale}), notes);

    const std::string name = result({"-C", "one", "name", kWhale});
    EXPECT_EQ(name, "one/mnt/ext1/Notes/The Whale or \u201cLeviathan\u201d.html");
    EXPECT_EQ(result({"-C", "one", "export", kWhale}), name);
    EXPECT_NE(readFile(name).find("p { margin: 0 }"), std::string::npos);

    EXPECT_EQ(result({"-C", "two", "import", name}), "3");
    EXPECT_EQ(result({"-C", "two", "import", name}), "0");
    EXPECT_EQ(result({"-C", "two", "notes", kWhale}),
              "1\t100000\tyellow\tthirty and\n2\t\t\t\n3\t4.5\t\t");
}

TEST_F(Client, OrdersAndSelectsNotes) {
    result({"-C", "one", "load", "device.json"});
    const struct {
        std::vector<std::string> options;
        const char* uuids;
    } cases[] = {
        {{}, "u3 u2 u1 "},
        {{"--order", "page"}, "u3 u2 u1 "},
        {{"--order", "id"}, "u1 u2 u3 "},
        {{"--order", "newest"}, "u2 u3 u1 "},
        {{"--note", "3", "--note", "1", "--note", "3"}, "u3 u1 "},
    };
    for (const auto& [options, uuids] : cases) {
        std::vector<std::string> words{"-C", "one", "export", kWhale, "--dir", "out"};
        words.insert(words.end(), options.begin(), options.end());
        const std::string path = result(words);
        EXPECT_EQ(std::filesystem::path(path).parent_path(), scratch_.path() / "out");
        EXPECT_EQ(order(readFile(path)), uuids) << testing::PrintToString(options);
    }
}

TEST_F(Client, ExplainsWhatWentWrong) {
    result({"-C", "one", "load", "device.json"});
    writeFile("empty.html", "<html></html>");
    writeFile("broken.json", R"({"books": [{"hash": "01", "notes": [{"uuid": 5}]}]})");
    writeFile("typo.json", R"({"books": [{"hash": "01", "tilte": "x"}]})");
    const struct {
        int status;
        std::vector<std::string> words;
        const char* complaint;
    } cases[] = {
        {2, {}, "A subcommand is required"},
        {2, {"frobnicate"}, "frobnicate"},
        {2, {"-C", "nowhere", "books"}, "nowhere"},
        {2, {"-C", "one", "export"}, "HASH"},
        {2, {"-C", "one", "export", kWhale, "--order", "size"}, "size"},
        {2, {"-C", "one", "export", kWhale, "--note", "first"}, "first"},
        {2, {"-C", "one", "export", kWhale, "--note", "-18446744073709551614"}, "-184"},
        {1, {"-C", "two", "books"}, "There is no device in"},
        {1, {"-C", "one", "export", "beef"}, "No book has the hash beef"},
        {1, {"-C", "one", "notes", "beef"}, "No book has the hash beef"},
        {1, {"-C", "one", "name", "beef"}, "No book has the hash beef"},
        {1, {"-C", "one", "export", kWhale, "--note", "99"}, "no note 99"},
        {1,
         {"-C", "one", "export", kWhale, "--dir", "s.css/x"},
         "Could not write all of /"},
        {1, {"-C", "two", "import", "absent.html"}, "Cannot read"},
        {1, {"-C", "one", "import", "empty.html"}, "carries no records"},
        {1, {"-C", "one", "load", "absent.json"}, "Cannot read"},
        {1, {"-C", "one", "load", "s.css"}, "s.css is not JSON"},
        {1, {"-C", "one", "load", "broken.json"}, "note 1: \"uuid\" has the wrong type"},
        {1, {"-C", "one", "load", "typo.json"}, "\"tilte\" is not known"},
    };
    for (const auto& [status, words, complaint] : cases) {
        const Outcome outcome = client(words);
        EXPECT_EQ(outcome.status, status) << testing::PrintToString(words);
        EXPECT_EQ(outcome.out, "") << testing::PrintToString(words);
        EXPECT_NE(outcome.err.find(complaint), std::string::npos) << outcome.err;
    }
    EXPECT_TRUE(std::filesystem::is_empty("two"));
}

TEST_F(Client, LeavesNoTraceOfAnExportOfAnUnknownBook) {
    result({"-C", "one", "load", "device.json"});
    client({"-C", "one", "export", "beef"});
    EXPECT_FALSE(std::filesystem::exists("one/mnt/ext1/Notes"));
}

}  // namespace
