// The client as a process, on devices of its own.
#include <SQLiteCpp/Database.h>
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <future>
#include <thread>

#include "files.h"
#include "process.h"
#include "scratch_directory.h"

namespace {

#define WHALE "00000000000000000000000000000001"
#define SECOND "00000000000000000000000000000002"
constexpr char kWhale[] = WHALE;

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

    static Outcome onTerminal(std::vector<std::string> words) {
        words.insert(words.begin(), {"env", "-u", "NO_COLOR", "TERM=xterm"});
        return runOnTerminal(words);
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
              std::string(kWhale) + "\tThe Whale: or, \u201cLeviathan\u201d\tH. M.\n" SECOND
                                    "\tSecond\t");
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
        {2, {"-C", "one", "export"}, "HASH is required\n\"notes-export export --help\""},
        {2, {"-C", "one", "export", kWhale, "--order", "size"}, "size"},
        {2, {"-C", "one", "export", kWhale, "--note", "first"}, "first"},
        {2, {"-C", "one", "export", kWhale, "--note", "-18446744073709551614"}, "-184"},
        {1, {"-C", "two", "books"}, "There is no device in"},
        {1, {"-C", "one", "export", "beef"}, "No book has the hash beef"},
        {1, {"-C", "one", "notes", "beef"}, "No book has the hash beef"},
        {1, {"-C", "one", "name", "beef"}, "No book has the hash beef"},
        {1, {"-C", "one", "name", "the wh"}, "but a title starts so:\n  " WHALE "  \"The"},
        {1, {"-C", "one", "name", "wahle"}, "Nearest:\n  " WHALE "  \"The Whale: or"},
        {1, {"-C", "one", "name", "ekond"}, "Nearest:\n  " SECOND "  \"Second\""},
        {1,
         {"-C", "one", "name", "00000000000000000000000000000x02"},
         "Nearest:\n  " SECOND},
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

TEST_F(Client, ListsEveryFieldAsJson) {
    result({"-C", "one", "load", "device.json"});
    EXPECT_EQ(result({"-C", "one", "books", "--json"}),
              R"([{"hash":")" WHALE R"(","title":"The Whale: or, “Leviathan”",)"
              R"("author":"H. M.","path":"/mnt/ext1/Books/whale.epub"},)"
              R"({"hash":")" SECOND R"(","title":"Second","author":"","path":""}])");
    EXPECT_EQ(result({"-C", "one", "notes", kWhale, "--json"}),
              R"([{"id":1,"uuid":"u1","page":100000,"color":"yellow","text":"thirty\tand",)"
              R"("comment":"","image_size":0,"timestamp":100},)"
              R"({"id":2,"uuid":"u2","page":4.5,"color":"","text":"",)"
              R"("comment":"two\nlines","image_size":0,"timestamp":300},)"
              R"({"id":3,"uuid":"u3","page":null,"color":"","text":"",)"
              R"("comment":"","image_size":3,"timestamp":200}])");
    EXPECT_EQ(result({"-C", "one", "notes", SECOND, "--json"}), "[]");
}

TEST_F(Client, ReplacesBytesThatAreNotUtf8InJson) {
    writeFile("bytes.json",
              "{\"books\": [{\"hash\": \"01\", \"title\": "
              "\"\xC3( \xE2\x82 \xF0\x9F\x90\x8B \xED\xA0\x80 \xC0\xAF\xE2\x82\"}]}");
    result({"-C", "one", "load", "bytes.json"});
    EXPECT_EQ(result({"-C", "one", "books", "--json"}),
              R"([{"hash":"01","title":"�( �� 🐋 ��� ����","author":"","path":""}])");
}

TEST_F(Client, UsesColourOnATerminalAlone) {
    result({"-C", "one", "load", "device.json"});
    const std::vector<std::string> list{CLIENT, "-C", "one", "books"};
    const std::vector<std::string> fail{CLIENT, "-C", "two", "books"};
    const struct {
        std::vector<std::string> environment;
        const std::vector<std::string>& command;
        const char* output;
    } cases[] = {
        {{}, list, "\t\033[1mSecond\033[0m\t\r\n"},
        {{}, fail, "\033[1;31mnotes-export:\033[0m There is no device"},
        {{"env", "NO_COLOR=1"}, list, "\tSecond\t\r\n"},
        {{"env", "NO_COLOR=1"}, fail, "notes-export: There is no device"},
        {{"env", "TERM=dumb"}, list, "\tSecond\t\r\n"},
    };
    for (const auto& [environment, command, output] : cases) {
        std::vector<std::string> words = environment;
        words.insert(words.end(), command.begin(), command.end());
        const std::string shown = onTerminal(words).out;
        EXPECT_NE(shown.find(output), std::string::npos) << shown;
    }
}

TEST_F(Client, DrawsProgressOnATerminalFromAThreadOfItsOwn) {
    result({"-C", "one", "load", "device.json"});
    SQLite::Database database("one/mnt/ext1/system/config/books.db",
                              SQLite::OPEN_READWRITE);
    // Runs `work` while another program keeps the client waiting.
    const auto slowly = [&](const auto& work) {
        database.exec("BEGIN EXCLUSIVE");
        const auto end = std::async(std::launch::async, [&] {
            std::this_thread::sleep_for(std::chrono::seconds(2));
            database.exec("ROLLBACK");
        });
        return work();
    };
    const struct {
        const char* directory;
        int status;
        std::string end;
    } cases[] = {
        {"out", 0, scratch_.path() / "out/The Whale or \u201cLeviathan\u201d.html\r\n"},
        {"s.css/x", 1, "\033[1;31mnotes-export:\033[0m Could not write"},
    };
    for (const auto& [directory, status, end] : cases) {
        const Outcome shown = slowly([&, to = directory] {
            return onTerminal({CLIENT, "-C", "one", "export", kWhale, "--dir", to});
        });
        EXPECT_EQ(shown.status, status) << shown.out;
        EXPECT_EQ(shown.out.find("\rExporting\u2026 1 s\r"), 0U) << shown.out;
        EXPECT_NE(shown.out.find(" s\r\033[K" + end), std::string::npos) << shown.out;
    }
    slowly([&] { return result({"-C", "one", "export", kWhale}); });
}

TEST_F(Client, CompletesItsCommandLine) {
    result({"-C", "one", "load", "device.json"});
    constexpr char kComplete[] = R"(. "$0"; compopt() { COMPREPLY+=("$2"); }
        COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)); _notes_export; echo "${COMPREPLY[*]}")";
    const struct {
        std::vector<std::string> words;
        const char* completions;
    } cases[] = {
        {{"ex"}, "export\n"},
        {{"-"}, "-C --help --version\n"},
        {{"-C", ""}, "dirnames\n"},
        {{"-C", "one", "notes", ""}, WHALE " " SECOND "\n"},
        {{"-C", "'one'", "export", WHALE, "--order", ""}, "page id newest\n"},
        {{"-C", "one", "export", "--order", "id", "00000000000000000000000000000002"},
         SECOND "\n"},
        {{"-C", "one", "export", WHALE, "--n"}, "--note\n"},
        {{"notes", ""}, "\n"},
        {{"-C", "one", "import", ""}, "default\n"},
    };
    for (const auto& [typed, completions] : cases) {
        std::vector<std::string> words{"bash", "-c", kComplete, COMPLETION, CLIENT};
        words.insert(words.end(), typed.begin(), typed.end());
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.out, completions) << testing::PrintToString(typed) << outcome.err;
    }
}

}  // namespace
