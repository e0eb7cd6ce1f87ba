#include <memory>

#include "device_test.h"
#include "notes_export/notes_export.h"

namespace library_tests {
namespace {

struct Free {
    void operator()(notes_exporter* exporter) const { free_notes_exporter(exporter); }
};
using Handle = std::unique_ptr<notes_exporter, Free>;

class CInterface : public DeviceTest {
protected:
    CInterface() { loadSampleBook(); }

    static Handle newHandle(const char* directory) {
        Handle handle(new_notes_exporter());
        notes_exporter_set_export_dir(handle.get(), directory);
        script().calls.clear();
        return handle;
    }
    static int exportNotes(const Handle& handle, const std::vector<unsigned long long>& ids,
                           notes_exporter_before before = nullptr,
                           void* userData = nullptr) {
        return notes_exporter_export_bookmarks_to_html(handle.get(), kBook.c_str(),
                                                       ids.empty() ? nullptr : ids.data(),
                                                       ids.size(), before, userData);
    }
    static std::string name(const Handle& handle) {
        char buffer[100];
        notes_exporter_get_exported_file_name(handle.get(), buffer, sizeof buffer,
                                              kBook.c_str());
        return buffer;
    }
};

TEST_F(CInterface, ExportsEveryNoteForANullArrayIntoTheFileItNamed) {
    const Handle handle = newHandle("./x//y/");
    const Handle other = newHandle("other");
    EXPECT_EQ(name(handle), "./x//y//Dune  Sons.html");
    EXPECT_EQ(exportNotes(handle, {}), 0);
    EXPECT_EQ(withoutDate(readFile("x/y/Dune  Sons.html")), golden("full_export.html"));
    EXPECT_EQ(name(handle), "./x//y//Dune  Sons (1).html");
    EXPECT_EQ(name(other), "other/Dune  Sons.html");
}

TEST_F(CInterface, ExportsRepeatedIdentifiersOnceInTheOrderOfTheFunction) {
    std::vector<std::pair<long long, long long>> seen;
    const auto before = [](void* userData, long long first, long long second) {
        static_cast<decltype(seen)*>(userData)->emplace_back(first, second);
        return first > second;
    };
    exportNotes(newHandle("Notes"), {13, 11, 13, 11, 12}, before, &seen);
    EXPECT_GE(seen.size(), 2U);
    EXPECT_NE(joined(script().calls).find("set_export_bookmark_ids({11, 12, 13})"),
              std::string::npos);
    const std::string document = readFile(kFile);
    EXPECT_LT(document.find("id=\"a&amp;b\""), document.find("id=\"u-12\""));
    EXPECT_LT(document.find("id=\"u-12\""), document.find("id=\"u-11\""));
    EXPECT_NE(document.find("id=\"u-11\""), std::string::npos);
    EXPECT_EQ(document.find("id=\"\""), std::string::npos);
}

TEST_F(CInterface, CopiesAsMuchOfTheNameAsTheBufferHolds) {
    const Handle handle = newHandle("Notes");
    const std::size_t length = kFile.size();
    for (const std::size_t size :
         {std::size_t{0}, std::size_t{1}, length, length + 1, length + 9}) {
        std::string buffer(length + 20, '~');
        notes_exporter_get_exported_file_name(handle.get(), buffer.data(), size,
                                              kBook.c_str());
        std::string expected(length + 20, '~');
        const std::string copied = (kFile + '\0').substr(0, size);
        EXPECT_EQ(buffer, expected.replace(0, copied.size(), copied));
    }
}

TEST_F(CInterface, ImportOfANullPathFailsWithoutTheEngine) {
    const Handle handle = newHandle("Notes");
    EXPECT_EQ(notes_exporter_import_from_file(handle.get(), nullptr), -1);
    EXPECT_TRUE(script().calls.empty());
}

}  // namespace
}  // namespace library_tests
