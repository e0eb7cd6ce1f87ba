// Device files, and files of no kind.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cases.h"
#include "sample_source.h"

namespace {

TEST(DeviceFile, FaultIsNamedWithItsPlace) {
    const ScratchDirectory scratch;
    const Case cases[] = {
        {R"({"hash": "abc"})",
         "sample: book 1: expected pairs of hexadecimal digits, in lower case, as "
         "\"hash\""},
        {R"({"hash": "ab"}, {})", "sample: book 2: \"hash\" is missing or empty"},
        {R"({"hash": "ab", "title": null})",
         "sample: book 1: \"title\" has the wrong type"},
        {R"({"hash": "ab", "title": "x", "title": "y"})",
         "sample: book 1: \"title\": is there twice"},
        {R"({"hash": "ab", "tilte": "x"})", "sample: book 1: \"tilte\": unknown member"},
        {R"({"hash": "ab", "a\u001bb": 1})", "sample: book 1: \"a b\": unknown member"},
        {R"({"hash": "ab"}, {"hash": "cd"}, {"hash": "ab"})",
         "sample: books 1 and 3 have one hash"},
        {R"("Emma")", "sample: book 1: expected an object"},
        {R"({"hash": "ab", "notes": [{"uuid": 5}]})",
         "sample: book 1, note 1: \"uuid\" has the wrong type"},
        {R"({"hash": "ab", "notes": [{"uuid": "a", "page": "5"}]})",
         "sample: book 1, note 1: \"page\" has the wrong type"},
        {R"({"hash": "ab", "notes": [{"uuid": "a", "timestamp": 1.5}]})",
         "sample: book 1, note 1: \"timestamp\" has the wrong type"},
        {R"({"hash": "ab", "notes": [{"uuid": "a"}, {"uuid": "b"}, {"uuid": "a"}]})",
         "sample: book 1: notes 1 and 3 have one uuid"},
        {R"({"hash": "ab", "notes": [{"uuid": "a", "image": "b.jpg"}]})",
         "sample: book 1, note 1: Cannot read b.jpg: No such file or directory"},
    };
    expectEach(cases, [](const std::string& books) {
        return shownSample(R"({"books": [)" + books + "]}");
    });
}

TEST(DeviceFile, OtherTextThanJsonIsRefusedWithItsPlace) {
    const ScratchDirectory scratch;
    const Case cases[] = {
        {"\uFEFF{}", ""},
        {"{\"books\": [\n {\"hash\": \"ab\\n\",}]}",
         "Cannot read sample as JSON: line 2, column 18: Missing a name for object "
         "member."},
        {"{\"books\":" + std::string(5000, '['),
         "Cannot read sample as JSON: line 1, column 1009: nested too deep."},
        {std::string("{}\0}", 4),
         "Cannot read sample as JSON: line 1, column 3: a zero byte."},
    };
    expectEach(cases, shownSample);
}

}  // namespace
