// Imports of documents too large for the fuzz corpus, and failures of the reader database.
#include <libxml/xmlerror.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <limits>
#include <locale>
#include <tuple>

#include "dump/import_result.h"
#include "dump/reader.h"
#include "fast_book_hash.h"
#include "host_records.h"
#include "on_empty_device.h"
#include "store/connection.h"
#include "utilities/reader_db_manager.h"
#include "utilities/serialization_utils.h"

using ImportedDocument = OnEmptyDevice;
using Store = OnEmptyDevice;
using veloran::utilities::Note;
using veloran::utilities::ReaderDbManager;

namespace {

std::string failureOfReading() {
    try {
        return recordsOnDevice();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

// Returns at least `size` bytes of repeated units; an increasing number replaces each '#'.
std::string repeated(const std::string& unit, std::size_t size) {
    std::string text;
    for (int number = 0; text.size() < size; ++number) {
        for (const char c : unit) {
            text += c == '#' ? std::to_string(number) : std::string(1, c);
        }
    }
    return text;
}

std::string refusal() {
    try {
        host::readDump("export.html");
        return "";
    } catch (const host::DumpError& error) {
        return error.what();
    }
}

}  // namespace

TEST_F(ImportedDocument, ExternalEntitiesAreNotFetched) {
    using veloran::utilities::SerializationUtils;
    const std::string dump = SerializationUtils::ToBase64(dumpOf(R"({"fast_hash":"ab"})"));
    writeFile("dump.dtd", "<!ENTITY dump \"" + dump + "\">");
    const std::string start =
        "<!DOCTYPE html SYSTEM \"dump.dtd\"><html>"
        "<script type=\"application/x-veloran-dbdump\">";
    EXPECT_EQ(imported(start + dump + "</script></html>"), 0);
    EXPECT_EQ(imported(start + "&dump;</script></html>"), host::kDumpDamaged);
}

TEST_F(ImportedDocument, IsReadInLinearTime) {
    // An increasing number replaces each '#'. The first document sets the time.
    const struct {
        const char *start, *unit, *refusal;
    } shapes[] = {
        {"<html>", "<b/>", "it holds no dump"},
        {"<!DOCTYPE html [<!ATTLIST a b (c", "|a#", "it has an internal subset"},
        {"<!DOCTYPE html [", "<!ENTITY a# ''>", "it has an internal subset"},
        {"<html>", "<a#/>", "it uses more names"},
        {"<html>", "&a#;", "it uses more names"},
        {"<html>", "<?a#?>", "it uses more names"},
        {"<html><p", " a#=''", "it uses more names"},
        {"<html>", "<a b='' c='' d='' b#=''/>", "it uses more names"},
        {"<html><p", " a=''", "it is broken in more than"},
        {"<html>", "&", "it is broken in more than"},
    };
    std::clock_t measure = 0;
    for (const auto& shape : shapes) {
        writeFile("export.html", shape.start + repeated(shape.unit, 4000000));
        const std::clock_t start = std::clock();
        EXPECT_EQ(refusal().find(shape.refusal), 0U) << shape.unit << ": " << refusal();
        const std::clock_t duration = std::clock() - start;
        measure = measure == 0 ? duration : measure;
        EXPECT_LT(duration, 10 * measure) << shape.start << shape.unit;
    }
}

TEST_F(ImportedDocument, InvalidBytesPrintNothing) {
    const auto handler = [](void* /*self*/, auto* /*error*/) {};
    const xmlStructuredErrorFunc own = handler;
    for (const xmlStructuredErrorFunc before : {xmlStructuredErrorFunc{}, own}) {
        SCOPED_TRACE(before == nullptr ? "no handler" : "own handler");
        xmlSetStructuredErrorFunc(nullptr, before);
        testing::internal::CaptureStderr();
        imported("<?xml version='1.0' encoding='utf-7'?><html>\xff\xfe+ADw</html>");
        imported("\xff\xfe" + std::string({'<', '\0', 'h', '\0', '>', '\xdc', '<', '\0'}));
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
        EXPECT_EQ(xmlStructuredError, before);
    }
    xmlSetStructuredErrorFunc(nullptr, nullptr);
}

// Facets of a locale that groups digits and changes the bytes of files.
struct GroupedDigits : std::numpunct<char> {
    std::string do_grouping() const override { return "\1"; }
};
struct ShiftedBytes : std::codecvt<char, char, std::mbstate_t> {
    bool do_always_noconv() const noexcept override { return false; }
    result do_in(std::mbstate_t& /*state*/, const char* from, const char* end,
                 const char*& next, char* to, char* /*room*/, char*& last) const override {
        last = std::transform(from, end, to, [](char byte) { return byte ^ 1; });
        next = end;
        return ok;
    }
};

TEST_F(ImportedDocument, IsReadAlikeInEveryLocale) {
    const std::string anchor = R"({"anchor":"book:/position?page=7","zoom":1.5})";
    merge({{"ab", "", "", {{"n", {{host::kAnchorTag, "", anchor, 7}}}}}});
    writeFile("export.html", documentOf(exported()));
    const auto read = [] {
        std::string hash(32, '\0');
        FastBookHash("export.html", hash.data(), 32);
        return std::tuple(Engine()->books_import("export.html"), hash,
                          ReaderDbManager().getNote("1").getAnchorUri());
    };
    const auto expected = read();
    EXPECT_EQ(std::get<0>(expected), 0);
    EXPECT_EQ(std::get<2>(expected), "book:/position?page=7");
    std::locale::global({{std::locale::classic(), new GroupedDigits}, new ShiftedBytes});
    const auto result = read();
    std::locale::global(std::locale::classic());
    EXPECT_EQ(result, expected);
}

TEST_F(ImportedDocument, DamagedFileIsRefusedOrReadWhole) {
    const std::vector<host::BookRecord> books = {
        {"ab", "T", "", {{"n", {{1, "n", {}, 7}, {101, "", R"({"anchor":"x"})", 8}}}}}};
    merge(books);
    const std::string payload = exported(), before = databaseBytes();
    const std::string document = documentOf(payload, "<title>t &amp; t</title>");
    std::vector<std::string> damaged;
    for (std::size_t at = 0; at < document.size(); ++at) {
        damaged.push_back(document.substr(0, at));
        for (const char byte : {'\0', ' ', '<', '&', '=', 'A', '\xff'}) {
            damaged.push_back(std::string(document).replace(at, 1, 1, byte));
        }
    }
    for (std::size_t at = 0; at < payload.size(); ++at) {
        damaged.push_back(documentOf(payload.substr(0, at)));
        for (int bit = 1; bit < 256; bit *= 2) {
            const char byte = static_cast<char>(payload[at] ^ bit);
            damaged.push_back(documentOf(std::string(payload).replace(at, 1, 1, byte)));
        }
    }
    Engine engine;
    std::size_t refused = 0;
    for (const std::string& text : damaged) {
        writeFile("export.html", text);
        try {
            EXPECT_EQ(show(host::readDump("export.html")), show(books)) << text;
        } catch (const host::DumpError& error) {
            EXPECT_EQ(engine->books_import("export.html"), error.result) << text;
            EXPECT_TRUE(databaseBytes() == before) << text;
            ++refused;
        }
    }
    EXPECT_TRUE(0 < refused && refused < damaged.size()) << refused;
}

TEST_F(Store, TimesAreClampedToClockRange) {
    using Clock = std::numeric_limits<std::time_t>;
    using Stored = std::numeric_limits<std::int64_t>;
    const host::TagRecord last{1, "", {}, Stored::max()}, first{2, "", {}, Stored::min()};
    merge({{"ab", "", "", {{"n", {last, first}}}}});
    const Note note = ReaderDbManager().getNote("1");
    EXPECT_EQ(note[Note::Tag{1}].timestamp, Clock::max());
    EXPECT_EQ(note[Note::Tag{2}].timestamp, Clock::min());
}

TEST_F(Store, UnusedTagJsonStaysText) {
    const host::TagRecord position{host::kAnchorTag, "", R"({"anchor":"x"})", 1};
    const host::TagRecord other{999, "", R"({"anchor":"y"})", 1};
    merge({{"ab", "", "", {{"n", {position, other}}}}});
    const Note note = ReaderDbManager().getNote("1");
    EXPECT_TRUE(note[Note::Tag::Anchor].json);
    EXPECT_FALSE(note[Note::Tag{999}].json);
    EXPECT_NE(recordsOnDevice().find(*other.json), std::string::npos);
}

TEST_F(Store, FailuresNameFileAndCause) {
    const std::string path = host::kReaderDatabasePath;
    host::ReaderStore store(path);
    EXPECT_THROW(store.merge({{"aa", "", "", {}}, {"ab", "", "", {{"", {}}}}}),
                 std::runtime_error);
    EXPECT_EQ(recordsOnDevice(), "");
    EXPECT_EQ(store.merge(sampleBooks()), 4) << "a later merge succeeds";
    const std::string document = documentOf(exported());
    Engine engine;
    ASSERT_EQ(mkfifo("fifo", 0600), 0);
    for (const char* file : {"missing", ".", "", "fifo"}) {
        EXPECT_EQ(engine->books_import(file), host::kFileUnreadable) << file;
    }
    const auto change = [&](const char* sql) {
        host::Connection(path, {1, ""}).query(sql).run();
    };
    change("UPDATE tags SET tag = 4294967399 WHERE tag = 103");
    EXPECT_EQ(failureOfReading(),
              "the note full has a tag 4294967399, which does not fit 32 bits");
    change("DROP TABLE tags");
    EXPECT_EQ(failureOfReading(), path + ": no such table: tags");
    std::string payload;
    EXPECT_FALSE(engine->books_export(payload, {1}));
    EXPECT_EQ(imported(document), host::kDatabaseError);

    const std::pair<const char*, const char*> versions[] = {
        {"2", "a later version (schema 2, known is 1)"},
        {"-1", "an earlier version (schema -1, known is 1)"},
        {"0", "another program (schema 0, known is 1)"},
    };
    for (const auto& [version, writer] : versions) {
        SCOPED_TRACE(version);
        const ScratchDirectory elsewhere;
        merge({});
        change((std::string("PRAGMA user_version = ") + version).c_str());
        EXPECT_EQ(failureOfReading(), path + ": written by " + writer);
        EXPECT_EQ(imported(document), host::kDatabaseError);
    }
    std::filesystem::remove_all("mnt");
    std::filesystem::create_directories(path);
    EXPECT_EQ(failureOfReading(), path + ": unable to open database file");
}

TEST_F(Store, PrefetchedNoteIsReturnedOnce) {
    host::BookRecord book{"ab", "", "", {}};
    const auto mergeTexts = [&](char text, std::int64_t timestamp) {
        book.notes.clear();
        for (int number = 10; number < 40; ++number) {
            book.notes.push_back(
                {std::to_string(number),
                 {{host::kTextTag, std::string(20000, text), {}, timestamp}}});
        }
        merge({book});
    };
    mergeTexts('a', 1);
    ReaderDbManager manager;
    const auto keys = manager.getBookNotesHashUUIDs("ab", true);
    const auto note = [&](std::size_t index) {
        const Note found = manager.getNote(keys.at(index).first);
        return found.uuid() + found.getText().substr(0, 1);
    };
    EXPECT_EQ(note(0) + note(1), "10a11a");
    mergeTexts('b', 2);
    EXPECT_EQ(note(0) + note(29), "10b39b") << "requested again, and out of order";
    EXPECT_EQ(note(2).substr(0, 2) + note(28), "1238b");
    manager.getBookNotesHashUUIDs("ab", true);
    for (std::size_t index = 0; index < keys.size(); ++index) {
        EXPECT_EQ(note(index), std::to_string(10 + index) + "b");
    }
}
