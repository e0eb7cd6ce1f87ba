// The files that an export replaces: only those that the client wrote and nobody has
// changed since.
#include <SQLiteCpp/SQLiteCpp.h>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <ctime>
#include <filesystem>
#include <functional>
#include <set>
#include <string>

#include "client/error.h"
#include "client/pages/page_export.h"
#include "file_systems.h"
#include "sample_source.h"
#include "scratch_files.h"
#include "store/database_paths.h"

namespace {

namespace fs = std::filesystem;

constexpr char kPage[] = "pages/Emma.html";

void load(std::int64_t time, const std::string& author = "Austen") {
    client::Note note;
    note.uuid = "u1";
    note.text = "handsome, clever";
    note.color = "yellow";
    note.time = time;
    addBook({"0a", "Emma", author, ""}, {note}, "p {}");
}

void inDatabase(const char* path, const std::string& sql) {
    SQLite::Database(path, SQLite::OPEN_READWRITE).exec(sql);
}

client::ExportedPage exportPage(client::NoteOrder order = client::NoteOrder::Reading,
                                const client::NoteFilter& filter = {},
                                client::PageTarget target = {"pages"}) {
    auto book = host::ReaderStore(host::kReaderDatabasePath).findBook("0a");
    client::PageExport pages(target);
    client::NoteReader notes(filter, order);
    pages.add(*book, client::selectNotes(notes, "0a", false));
    return pages.publish().at(0);
}

client::NoteFilter yellow() {
    client::NoteFilter filter;
    filter.addColor("yellow");
    return filter;
}

void edit(const std::string& from, const std::string& to) {
    std::string page = readFile(kPage);
    writeFile(kPage, page.replace(page.find(from), from.size(), to));
}

std::string filesIn(const std::string& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    std::string text;
    for (const std::string& name : names) {
        text += name + '|';
    }
    return text;
}

// After a first export, `change` happens, and the book is exported again.
struct Case {
    const char* name;
    std::function<void()> change;
    bool isReplaced;    // the file Emma.html
    const char* files;  // then in the folder
    std::function<client::ExportedPage()> exportAgain = [] { return exportPage(); };
    bool settles = true;  // a third export finds the page of the second
};

const Case kCases[] = {
    {"nothing", [] {}, false, "Emma.html|"},
    {"newer record", [] { load(200); }, true, "Emma.html|"},
    {"other author", [] { load(100, "J. A."); }, true, "Emma.html|"},
    {"style sheet", [] { writeFile(host::kNoteStyleSheetPath, "i {}"); }, true,
     "Emma.html|"},
    {"visible text edited", [] { load(200), edit("handsome", "pretty"); }, false,
     "Emma (1).html|Emma.html|"},
    {"cut in the middle", [] { fs::resize_file(kPage, 700); }, false,
     "Emma (1).html|Emma.html|"},
    {"saved with CR LF", [] { edit("<body>\n", "<body>\r\n"); }, false, "Emma.html|"},
    {"saved with a mark", [] { load(200), writeFile(kPage, "\ufeff" + readFile(kPage)); },
     true, "Emma.html|"},
    {"renamed", [] { fs::rename(kPage, "pages/Quotes.html"); }, true,
     "Emma.html|Quotes.html|"},
    {"copied to the next name", [] { fs::copy(kPage, "pages/Emma (1).html"), load(200); },
     true, "Emma (1).html|Emma.html|"},
    {"other program's file", [] { writeFile(kPage, "mine"); }, false,
     "Emma (1).html|Emma.html|"},
    {"name with a large counter",
     [] { load(200), fs::copy(kPage, "pages/Emma (2000000000).html"); }, true,
     "Emma (2000000000).html|Emma.html|"},
    {"link", [] { fs::rename(kPage, "kept"), fs::create_symlink("../kept", kPage); }, false,
     "Emma (1).html|Emma.html|"},
    {"folder of that name", [] { fs::remove(kPage), fs::create_directory(kPage); }, false,
     "Emma (1).html|Emma.html|"},
    {"empty file", [] { writeFile(kPage, ""); }, true, "Emma.html|"},
    {"page of version 1.1",
     [] {
         inDatabase(host::kLibraryDatabasePath, "DELETE FROM file_props WHERE prop <> 7");
         load(200);
     },
     true, "Emma.html|"},
    {"page of another collection",
     [] { inDatabase(host::kLibraryDatabasePath, "DELETE FROM file_props"); }, false,
     "Emma (1).html|Emma.html|"},
    {"imported page of version 1.1",
     [] {
         inDatabase(host::kLibraryDatabasePath,
                    "UPDATE file_props SET value = 'imported' || char(10) WHERE prop <> 7");
     },
     false, "Emma (1).html|Emma.html|"},
    {"nothing can be noted",
     [] {
         load(200);
         inDatabase(host::kLibraryDatabasePath,
                    "CREATE TRIGGER t BEFORE INSERT ON file_props WHEN NEW.prop <> 7 "
                    "BEGIN SELECT RAISE(ABORT, 'no'); END");
     },
     false, "Emma (1).html|Emma.html|", [] { return exportPage(); }, false},
    {"other selection", [] {}, false, "Emma (1).html|Emma.html|",
     [] { return exportPage({}, yellow()); }},
    {"other order", [] {}, false, "Emma (1).html|Emma.html|",
     [] { return exportPage(client::NoteOrder::Newest); }},
    {"a new page is wanted", [] {}, false, "Emma (1).html|Emma.html|",
     [] {
         return exportPage({}, {}, {"pages", "", true});
     },
     false},
};

void exportTwice(const Case& test) {
    const ScratchDirectory scratch;
    load(100);
    exportPage();
    test.change();
    const std::string before = readFile(kPage);
    const client::ExportedPage page = test.exportAgain();
    EXPECT_EQ(readFile(kPage) != before, test.isReplaced);
    EXPECT_EQ(filesIn("pages"), test.files);
    EXPECT_FALSE(page.failed) << page.message;
    EXPECT_EQ(test.exportAgain().path == page.path, test.settles) << page.path;
}

struct FileSystem {
    const char* name;
    bool knowsFlags;
    bool knowsLinks;
};

constexpr FileSystem kFileSystems[] = {{"all calls", true, true},
                                       {"no flags of renameat2", false, true},
                                       {"neither flags nor links", false, false}};

}  // namespace

TEST(Export, ReplacesOnlyOwnUntouchedFiles) {
    for (const auto& [fileSystem, knowsFlags, knowsLinks] : kFileSystems) {
        file_system::knowsRenameFlags = knowsFlags;
        file_system::knowsLinks = knowsLinks;
        for (const Case& test : kCases) {
            SCOPED_TRACE(std::string(fileSystem) + ", " + test.name);
            exportTwice(test);
        }
    }
    file_system::knowsRenameFlags = file_system::knowsLinks = true;
}

TEST(Export, ReplacedPageKeepsItsMode) {
    const ScratchDirectory scratch;
    load(100);
    exportPage();
    fs::permissions(kPage, fs::perms::owner_read | fs::perms::owner_write);
    load(200);
    exportPage();
    EXPECT_EQ(fs::status(kPage).permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

// The records cannot be read, because their table has another name for a moment.
TEST(Export, PageWithoutRecordsReplacesNone) {
    const ScratchDirectory scratch;
    load(100);
    exportPage();
    const std::string before = readFile(kPage);
    load(200);
    inDatabase(
        host::kReaderDatabasePath,
        "ALTER TABLE books RENAME TO b; CREATE VIEW books AS SELECT abs(random()) AS "
        "id, fast_hash, title, path FROM b");
    const client::ExportedPage page = exportPage();
    EXPECT_TRUE(page.failed);
    EXPECT_EQ(readFile(kPage), before);
    EXPECT_EQ(filesIn("pages"), "Emma.html|");
    fs::remove(kPage);
    exportPage();
    EXPECT_EQ(exportPage().path, kPage);  // no further page with each export
    EXPECT_EQ(filesIn("pages"), "Emma.html|");
}

TEST(Export, NamedFileIsReplacedWhereItsLinkLeads) {
    const ScratchDirectory scratch;
    load(100);
    writeFile("mine", "mine");
    fs::create_symlink("real.html", "link.html");
    const client::PageTarget target = {"", fs::absolute("link.html").string()};
    exportPage({}, {}, target);
    load(200);
    EXPECT_EQ(exportPage({}, {}, target).path, target.file);
    EXPECT_TRUE(fs::is_symlink("link.html"));
    EXPECT_EQ(filesIn("."), "link.html|mine|mnt|real.html|");
    EXPECT_THROW(exportPage({}, {}, {"", fs::absolute("mine").string()}),
                 client::UserError);
}

TEST(Export, OtherNotesDoNotAgeSelection) {
    const ScratchDirectory scratch;
    load(100);
    exportPage({}, yellow());
    const auto time = fs::last_write_time(kPage);
    client::Note other;
    other.uuid = "blue";
    addBook({"0a", "", "", ""}, {other});
    EXPECT_EQ(exportPage({}, yellow()).path, kPage);
    EXPECT_EQ(fs::last_write_time(kPage), time);
}

// Two exports at once find the same free name.
TEST(Export, EqualPageOfAnotherCollectionStaysItsOwn) {
    const ScratchDirectory scratch;
    load(100);
    auto book = host::ReaderStore(host::kReaderDatabasePath).findBook("0a");
    client::PageExport late({"pages"});
    const client::NoteFilter all;
    client::NoteReader notes(all, client::NoteOrder::Reading);
    late.add(*book, client::selectNotes(notes, "0a", false));
    for (const auto& entry : fs::recursive_directory_iterator("pages")) {
        if (entry.is_regular_file()) {
            fs::copy(entry.path(), kPage);
            break;
        }
    }
    EXPECT_EQ(late.publish().at(0).path, "pages/Emma (1).html");
    load(200);
    EXPECT_EQ(exportPage().path, "pages/Emma (1).html");
}

// A killed program leaves its folder, whose lock nobody holds.
TEST(TempFolder, LeftoverOfKilledProgramIsRemoved) {
    const ScratchDirectory scratch;
    const client::TempFolder used("pages");
    const std::string old = "pages/.notes-export-old";
    fs::create_directories(old + "/page");
    fs::create_directories("pages/.notes-export-new");
    for (const std::string& folder : {old, used.path()}) {
        const timespec hourAgo[2] = {{std::time(nullptr) - 3600, 0},
                                     {std::time(nullptr) - 3600, 0}};
        utimensat(AT_FDCWD, folder.c_str(), hourAgo, 0);
    }
    client::TempFolder::removeLeftovers("pages");
    EXPECT_FALSE(fs::exists(old));
    EXPECT_TRUE(fs::exists("pages/.notes-export-new"));
    EXPECT_TRUE(fs::exists(used.path()));
}
