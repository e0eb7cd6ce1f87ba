#include "c_exporter.h"
#include "device_test.h"

namespace {

class CInterface : public DeviceTest {
protected:
    CInterface() { loadSampleBook(); }
};

TEST_F(CInterface, ExportsEveryNoteForANullArrayIntoTheFileItNamed) {
    const CExporter exporter(kBook, "./x//y/");
    const CExporter other(kBook, "other");
    EXPECT_EQ(exporter.fileName(), "./x//y//Dune  Sons.html");
    EXPECT_FALSE(std::filesystem::exists("x")) << "a query creates nothing";
    EXPECT_EQ(exporter.exportNotes(), 0);
    EXPECT_EQ(withoutDates(readFile("x/y/Dune  Sons.html")), golden("full_export.html"));
    EXPECT_EQ(exporter.fileName(), "./x//y//Dune  Sons (1).html");
    EXPECT_EQ(other.fileName(), "other/Dune  Sons.html");
}

TEST_F(CInterface, ExportsRepeatedIdentifiersOnceInTheOrderOfTheFunction) {
    std::vector<std::pair<long long, long long>> seen;
    const auto before = [](void* userData, long long first, long long second) {
        static_cast<decltype(seen)*>(userData)->emplace_back(first, second);
        return first > second;
    };
    CExporter(kBook, "Notes").exportNotes(before, &seen, {13, 11, 13, 11, 12});
    EXPECT_GE(seen.size(), 2U);
    EXPECT_NE(joined(script().calls).find("set_export_bookmark_ids({11, 12, 13})"),
              std::string::npos);
    EXPECT_EQ(renderedIds(), (Ids{13, 12, 11}));
}

TEST_F(CInterface, CopiesAsMuchOfTheNameAsTheBufferHolds) {
    const CExporter exporter(kBook, "Notes");
    const std::size_t length = kFile.size();
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, length, length + 1, length + 9}) {
        std::string buffer(length + 20, '~');
        notes_exporter_get_exported_file_name(exporter.handle(), buffer.data(), size,
                                              kBook.c_str());
        std::string expected(length + 20, '~');
        const std::string copied = (kFile + '\0').substr(0, size);
        EXPECT_EQ(buffer, expected.replace(0, copied.size(), copied));
    }
}

TEST_F(CInterface, ImportOfANullPathFailsWithoutTheEngine) {
    const CExporter exporter(kBook, "Notes");
    const Calls calls = script().calls;
    EXPECT_EQ(exporter.importFile(nullptr), -1);
    EXPECT_EQ(script().calls, calls);
}

}  // namespace
