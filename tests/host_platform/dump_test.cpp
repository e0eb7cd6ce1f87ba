// The dump: it restores all records, and equal records give equal bytes.
#include <zlib.h>

#include <algorithm>
#include <random>

#include "dump/import_result.h"
#include "dump/reader.h"
#include "dump/writer.h"
#include "host_records.h"
#include "on_empty_device.h"

using Dump = OnEmptyDevice;

TEST_F(Dump, ImportRestoresEveryRecordOnce) {
    EXPECT_EQ(merge(sampleBooks()), 4);
    EXPECT_EQ(recordsOnDevice(), show(sampleBooks()));
    std::vector<host::BookRecord> books = sampleBooks();
    std::reverse(books.begin(), books.end());
    for (host::BookRecord& book : books) {
        std::reverse(book.notes.begin(), book.notes.end());
        for (host::NoteRecord& note : book.notes) {
            std::reverse(note.tags.begin(), note.tags.end());
        }
    }
    const std::string payload = exported();
    for (const bool isReversed : {false, true}) {
        SCOPED_TRACE(isReversed ? "merged in reverse" : "imported");
        const ScratchDirectory elsewhere;
        EXPECT_EQ(isReversed ? merge(books) : imported(documentOf(payload)), 4);
        EXPECT_EQ(recordsOnDevice(), show(sampleBooks()));
        EXPECT_TRUE(exported() == payload);
        const std::string bytes = databaseBytes();
        EXPECT_EQ(imported(documentOf(payload)), 0);
        EXPECT_TRUE(databaseBytes() == bytes);
    }
}

TEST_F(Dump, IsOneGzipMemberOfJson) {
    merge({{"ab",
            "D\xc3\xbcne",
            "\xff",
            {{"n",
              {{1, "n", {}, 7},
               {101, "", R"({"anchor":"x"})", 7},
               {102, std::string(1, '\0'), "broken {", 7}}}}}});
    const std::string payload = exported();
    EXPECT_EQ(payload.substr(0, 10), std::string("\x1f\x8b\x08\0\0\0\0\0\4\xff", 10));
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

TEST_F(Dump, CarriesMegabytesOfPictures) {
    std::mt19937 random;
    std::string picture(1 << 20, '\0');  // bytes that do not compress
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
    const std::string shown = "<img src=\"" + std::string(12000000, 'A') + "\"/>";
    EXPECT_EQ(imported(documentOf(payload, shown)), 9);
    EXPECT_TRUE(recordsOnDevice() == show({book}));
}

TEST_F(Dump, LimitsHoldForWritingAndReading) {
    merge(sampleBooks());
    const std::string payload = exported();
    const std::string lengthOfText = payload.substr(payload.size() - 4);
    const auto digit = [&](std::size_t at) {
        return static_cast<unsigned char>(lengthOfText[at]);
    };
    const std::size_t size = digit(0) + 256U * digit(1), records = 2 + 4 + 7;
    const host::DumpLimits exact = {size, records};
    host::ReaderStore store(host::kReaderDatabasePath);
    std::string written;
    EXPECT_TRUE(host::writeDump(store, {1, 2}, {}, written, exact));
    EXPECT_TRUE(written == payload);
    EXPECT_EQ(show(host::readPayload({payload}, exact)), show(sampleBooks()));
    for (const host::DumpLimits& limits :
         {host::DumpLimits{size - 1, records}, {size, records - 1}}) {
        SCOPED_TRACE(limits.records);
        EXPECT_THROW(host::writeDump(store, {1, 2}, {}, written, limits),
                     std::runtime_error);
        EXPECT_THROW(host::readPayload({payload}, limits), host::DumpError);
    }
}

TEST_F(Dump, TrailingDataIsRefused) {
    merge(sampleBooks());
    const std::string payload = exported();
    EXPECT_THROW(host::readPayload({payload, "more"}), host::DumpError);
}

TEST(DumpReader, RefusesInvalidUtf8) {
    const auto read = [](const std::string& title) {
        return host::readPayload(
            {dumpOf(R"({"fast_hash":"ab","title":")" + title + "\"}")});
    };
    EXPECT_EQ(read("D\xc3\xbcne \\u00e9").at(0).title, "D\xc3\xbcne \xc3\xa9");
    for (const char* title : {"\xff", "D\xc3", "\\udc00", "\\ud800"}) {
        EXPECT_THROW(read(title), host::DumpError) << title;
    }
}
