// The dump: what goes in comes out, the same records are the same bytes, and what is not a
// dump is refused with the database as it was.
#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <random>
#include <string>

#include "dump_format.h"
#include "dump_reader.h"
#include "import_result.h"
#include "reader_records.h"

namespace {

using namespace std::string_literals;

class Dump : public OnDevice {};

std::string tagOf(const std::string& members) {
    return dumpOf(R"({"fast_hash":"ab","notes":[{"uuid":"n","tags":[{)" + members +
                  "}]}]}");
}

std::string moreOfTag(const std::string& members) {
    return tagOf(R"("tag":1,"timestamp":2,)" + members);
}

}  // namespace

TEST_F(Dump, BringsEveryRecordToAnotherDeviceOnce) {
    EXPECT_EQ(merge(sampleBooks()), 4);
    EXPECT_EQ(recordsOnDevice(), show(sampleBooks()));
    const std::string document = documentOf(exported());
    const ScratchDirectory elsewhere;
    EXPECT_EQ(imported(document), 4);
    EXPECT_EQ(recordsOnDevice(), show(sampleBooks()));
    const std::string bytes = databaseBytes();
    EXPECT_EQ(imported(document), 0);
    EXPECT_TRUE(databaseBytes() == bytes);
}

TEST_F(Dump, SameRecordsGiveSameBytesWhateverTheOrderTheyCameIn) {
    merge(sampleBooks());
    const std::string payload = exported();
    const ScratchDirectory elsewhere;
    std::vector<host::BookRecord> books = sampleBooks();
    std::reverse(books.begin(), books.end());
    for (host::BookRecord& book : books) {
        std::reverse(book.notes.begin(), book.notes.end());
        for (host::NoteRecord& note : book.notes) {
            std::reverse(note.tags.begin(), note.tags.end());
        }
    }
    merge(books);
    EXPECT_TRUE(exported() == payload);
}

TEST_F(Dump, IsJsonInOneGzipMemberWithoutTimeAndSystem) {
    merge({{"ab",
            "D\xc3\xbcne",
            "\xff",
            {{"n",
              {{1, "n", {}, 7},
               {101, "", R"({"anchor":"x"})", 7},
               {102, std::string(1, '\0'), "broken {", 7}}}}}});
    const std::string payload = exported();
    EXPECT_EQ(payload.substr(0, 10), std::string("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10));
    writeFile("dump.gz", payload);
    gzFile file = gzopen("dump.gz", "rb");
    std::string text(1000, '\0');
    text.resize(static_cast<std::size_t>(gzread(file, text.data(), 1000)));
    EXPECT_EQ(gzclose(file), Z_OK);
    EXPECT_EQ(text,
              "{\"format\":\"notes-export-dump\",\"version\":1,\"books\":["
              "{\"fast_hash\":\"ab\",\"title\":\"D\xc3\xbcne\",\"path_base64\":\"/w==\","
              "\"notes\":[{\"uuid\":\"n\",\"tags\":["
              "{\"tag\":1,\"text\":\"n\",\"timestamp\":7},"
              R"({"tag":101,"text":"","json":"{\"anchor\":\"x\"}","timestamp":7},)"
              "{\"tag\":102,\"text_base64\":\"AA==\",\"timestamp\":7}]}]}]}");
}

TEST_F(Dump, HoldsPicturesBeyondTenMegabytesOfText) {
    std::mt19937 random;
    std::string picture(1 << 20, '\0');  // of bytes that do not compress
    std::generate(picture.begin(), picture.end(),
                  [&] { return static_cast<char>(random() >> 24); });
    host::BookRecord book{"ab", "", "", {}};
    for (int i = 0; i < 9; ++i) {
        book.notes.push_back({std::to_string(i), {{host::kImageTag, picture, {}, 1}}});
    }
    merge({book});
    const std::string payload = exported();
    EXPECT_LT(payload.size(), picture.size() * 9 * 102 / 100);
    const ScratchDirectory elsewhere;
    EXPECT_EQ(imported(documentOf(payload)), 9);
    EXPECT_TRUE(recordsOnDevice() == show({book}));
}

TEST_F(Dump, MayHoldRecordsTwiceAndInAnyOrder) {
    const std::string book =
        R"({"notes":[{"tags":[{"timestamp":2,"text_base64":" Z g = = ","tag":1}],"uuid":"n"}],)"
        R"("fast_hash":"ab"})";
    EXPECT_EQ(imported(documentOf(dumpOf(book + " , " + book + "\n"))), 1);
    EXPECT_EQ(recordsOnDevice(), "book ab||\n  note n\n    1|f|-|2\n");
}

TEST_F(Dump, IsRefusedWhenItIsNotOne) {
    const std::string manyBrackets(1000000, '[');
    const std::string tooDeep = std::string(33, '[') + std::string(33, ']');
    const std::string whole = dumpOf("");
    const std::string damaged[] = {
        "",
        R"({"format":"notes-export-dump","version":1,"books":[]})",
        whole + '\0',
        whole + std::string(99999, 'x'),
        gzipped("[]"),
        gzipped(manyBrackets),
        gzipped(R"({"format":"other","version":1,"books":[]})"),
        gzipped(R"({"version":1,"books":[]})"),
        gzipped(R"({"format":"notes-export-dump","books":[]})"),
        gzipped(R"({"format":"notes-export-dump","version":1})"),
        gzipped(R"({"format":"notes-export-dump","version":"1"})"),
        gzipped(R"({"format":"notes-export-dump","version":1,"books":[]}1)"),
        gzipped(R"({"format":"notes-export-dump","version":1,"books":[]})"s + '\0'),
        dumpOf(manyBrackets),
        dumpOf("{}"),
        dumpOf(R"({"fast_hash":{}})"),
        dumpOf(R"({"fast_hash":"ab","other":1})"),
        dumpOf(R"({"fast_hash":"ab","uuid":"n"})"),
        dumpOf(R"({"fast_hash":"ab","notes":[{"tags":[]}]})"),
        dumpOf(R"({"fast_hash":"ab","notes":[{"uuid":""}]})"),
        tagOf(R"("timestamp":2)"),
        tagOf(R"("tag":1)"),
        tagOf(R"("tag":4294967297,"timestamp":2)"),
        tagOf(R"("tag":1,"timestamp":2.5)"),
        tagOf(R"("tag":1,"timestamp":9223372036854775808)"),
        tagOf(R"("tag":1,"timestamp":2},{)"),
        dumpOf(
            R"({"fast_hash":"ab","notes":[{"uuid":"n","tags":[{"tag":1,"timestamp":2},3]}]})"),
        moreOfTag(R"("text":null)"),
        moreOfTag(R"("text":"\ud800")"),
        moreOfTag("\"text\":\"\xff\""),
        moreOfTag(R"("text_base64":"Zg=")"),
        moreOfTag(R"("json_base64":"e30=")"),
        moreOfTag(R"("json":"{")"),
        moreOfTag(R"("json":")" + tooDeep + "\""),
    };
    merge(sampleBooks());
    const std::string before = databaseBytes();
    for (const std::string& payload : damaged) {
        EXPECT_EQ(imported(documentOf(payload)), host::kDumpDamaged)
            << "payload " << &payload - damaged;
    }
    EXPECT_EQ(imported(documentOf(
                  gzipped(R"({"format":"notes-export-dump","version":2,"new":[]})"))),
              host::kVersionUnknown);
    for (const char* path : {"missing", ".", ""}) {
        EXPECT_EQ(Engine()->books_import(path), host::kFileUnreadable) << path;
    }
    EXPECT_EQ(imported("<html></html>"), host::kNoDump);
    EXPECT_TRUE(databaseBytes() == before);
}

TEST(DumpReader, RefusesWhatExceedsALimitOrGoesOnInAnotherPiece) {
    const std::string text = R"({"format":"notes-export-dump","version":1,"books":[)" +
                             std::string(1000000, ' ') + "]}";
    const std::string bomb = gzipped(text);
    EXPECT_TRUE(host::readPayload({bomb}, text.size()).empty());
    EXPECT_THROW(host::readPayload({bomb}, text.size() - 1), host::DumpError);
    EXPECT_THROW(host::readPayload({bomb, "more"}, text.size()), host::DumpError);

    std::string notes = R"({"fast_hash":"ab","notes":[{"uuid":"n"})";
    for (std::size_t records = 2; records < host::kMaxRecords; ++records) {
        notes += R"(,{"uuid":"n"})";
    }
    EXPECT_NO_THROW(host::readPayload({dumpOf(notes + "]}")}, host::kMaxDumpSize));
    notes += R"(,{"uuid":"n"})";
    EXPECT_THROW(host::readPayload({dumpOf(notes + "]}")}, host::kMaxDumpSize),
                 host::DumpError);
}
