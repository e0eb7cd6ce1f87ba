// The hashes of books and the uuids of notes whose files have none. They must never change:
// people load their files again and again.
#include <gtest/gtest.h>

#include <string>

#include "cases.h"
#include "kobo_sample.h"
#include "sample_source.h"

namespace {

// Returns the uuids of the book by Jane Austen; of another, its hash and its uuids.
std::string shownIdentities(const std::string& content) {
    const client::SourceContent source = readSample(content);
    const client::IncomingBook& book = source.books.at(0);
    std::string shown =
        book.book.hash == "0fbb125bb48d0807642dc878cfab323e" ? "" : book.book.hash + ':';
    for (const client::Note& note : book.notes) {
        shown += (shown.empty() ? "" : " ") + note.uuid;
    }
    return shown;
}

std::string record(const std::string& details, const std::string& text) {
    return "Emma (Jane Austen)\n- Your " + details +
           " | Added on Sunday, June 10, 2012 10:22:37 PM\n\n" + text + "\n==========\n";
}

std::string set(const std::string& items) {
    return R"({"about": {"dc:title": "Emma", "dc:creator": "Jane Austen"}, "items": [)" +
           items + "]}";
}

std::string page(const std::string& notes, const std::string& head = "") {
    return "<html>" + head + "<h1>2026-03-07 09:05:01 - Emma</h1><span>Jane Austen</span>" +
           notes + "</html>";
}

std::string pageNote(const std::string& uuid, const std::string& color,
                     const std::string& text) {
    return "<div id='" + uuid + "' class=\"bookmark bm-color-" + color +
           "\"><div class='bm-text'><p>" + text + "</p></div></div>";
}

TEST(Identity, OfClippingComesFromKindPlaceAndTime) {
    const ScratchDirectory scratch;
    const NamedCase cases[] = {
        {"page and location", record("Highlight on page 5 | Location 70-71", "handsome"),
         "1316a9cd5e5b4b524762e9b4356182b0"},
        {"range of pages", record("Highlight on page 12-13", "handsome"),
         "3f4a6613c883aa4726c39661727814ea"},
        {"Roman page", record("Highlight on page xii", "handsome"),
         "413968e7da29e999bd91751763e3e546"},
        {"Roman page and location", record("Bookmark on page xii | Location 24", ""),
         "5b01061ff8974a58fb800bc16412fd9b"},
        {"no date",
         "Emma (Jane Austen)\n- Your Highlight at location 5-6\n\nhandsome\n==========\n",
         "70fe1d9ba68d59c51b1e02a5ed46d318"},
        {"Korean date",
         "Emma (Jane Austen)\n- 위치 5-6의 하이라이트 | 추가됨: 2019년 1월 28일 월요일 "
         "오후 "
         "9:27:44\n\nhandsome\n==========\n",
         "70fe1d9ba68d59c51b1e02a5ed46d318"},
        {"note without a place", record("Note", "mine"),
         "cbae388f3984029dfd516e849b3087dc"},
        {"no author", "Emma - Jane Austen\n- Your Highlight on page 5\n\na\n==========\n",
         "e68cb3e7756b71d025f666db1a932f86: 307bba11aa77b96e26828e80154ed352"},
        {"title in Windows-1252",
         "Caf\xE9 (Ren\xE9)\n- Note on page 3\n\n\xE4\n==========\n",
         "864dd6906339ecf6b9f91668d314beb6: 2ef27d6c2121fd9f861f5cd04bf0c730"},
        {"passage that was changed",
         record("Highlight on page 5 | Location 70-71", "a") +
             record("Highlight on page 5 | Location 70-73", "a b"),
         "1316a9cd5e5b4b524762e9b4356182b0"},
        {"one identity with two texts",
         record("Highlight on page 5", "handsome") +
             record("Highlight on page 5", "clever"),
         "1b89aca972b74427c2d874756c64d7bf 85b82e44f9651cdebe83efe2268c7797"},
    };
    expectEach(cases, shownIdentities);
}

TEST(Identity, OfOtherNotesIsTheirOwnOrDerived) {
    const ScratchDirectory scratch;
    const NamedCase cases[] = {
        {"UUID of Kobo", koboDatabase({"UUID = 'u'"}), "u"},
        {"BookmarkID of Kobo", koboDatabase({"UUID = NULL"}), "b"},
        {"neither", koboDatabase({"UUID = NULL, BookmarkID = NULL"}),
         "2e2c53d7e92e0a2d243298a08c9b8a67"},
        {"two texts of Kobo",
         koboDatabase({"UUID = '', BookmarkID = '', Type = '', Text = 'handsome'",
                       "UUID = '', BookmarkID = '', Type = '', Text = 'clever'"}),
         "be67d14b744112582ce203b6565a19be 43ed9a57df774a5b241e35d2184f8f95"},
        {"book of Kobo without a title",
         koboDatabase({"UUID = '', BookmarkID = '', VolumeID = 'file:///a/lost.epub'"}),
         "5623f63cc5b8fe37d52f0282a281f51d: 0df1ae90a89b9ce0c597d0ee8e110cfb"},
        {"UUID of an annotation", set(R"({"id": "urn:uuid:7a1e7fb0-5b1c", "target": "c"})"),
         "7a1e7fb0-5b1c"},
        {"another id", set(R"({"id": "https://example.org/a/1", "target": "c"})"),
         "https://example.org/a/1"},
        {"no id", set(R"({"created": "2026-03-07T09:05:01Z", "target": {"selector":
                 {"type": "TextQuoteSelector", "exact": "handsome"}}})"),
         "c8c2ea7426a6754c44ace90526d84981"},
        {"no id, after another program and a change",
         set(R"({"modified": "2026-03-08", "body": {"value": "x"}, "target": {"selector":
                 {"exact":"handsome","type":"TextQuoteSelector"}},
                 "created": "2026-03-07T10:05:01+01:00"})"),
         "c8c2ea7426a6754c44ace90526d84981"},
        {"no id, selector and time", set(R"({"target": "c"})"),
         "e4535bde12ef9b86a36b3977abfa4cb4"},
        {"two comments of one id",
         set(R"({"id": "1", "target": "c", "body": {"value": "x"}},
                {"id": "1", "target": "c", "body": {"value": "y"}})"),
         "1 4c7086680f99af1dd2246180c6d027df"},
        {"the same in another order",
         set(R"({"id": "1", "target": "c", "body": {"value": "y"}},
                {"id": "1", "target": "c", "body": {"value": "x"}})"),
         "4c7086680f99af1dd2246180c6d027df 1"},
        {"ids of one uuid, in another order",
         set(R"({"id": "1", "target": "c", "body": {"value": "y"}},
                {"id": "urn:uuid:1", "target": "c", "body": {"value": "x"}})"),
         "4c7086680f99af1dd2246180c6d027df 1"},
        {"source as the title", R"({"items": [{"id": "1", "target": "c1.xhtml"}]})",
         "97f6fb4e9e0a6511ca1f35640259de0e: 1"},
        {"file as the title", R"({"items": [{"id": "1", "target": {}}]})",
         "de9dd2eff95a66f73212d0acc586665b: 1"},
        {"page with a dump",
         page(pageNote("u1", "red", "a"),
              "<script type='application/x-veloran-dbdump' book_hash='ABCD'></script>"),
         "abcd: u1"},
        {"page without a dump", page(pageNote("u1", "red", "a")), "u1"},
        {"page in capitals",
         "<HTML><H1>2026-03-07 09:05:01 - Emma</H1><SPAN>Jane Austen</SPAN>" +
             pageNote("u1", "red", "a"),
         "u1"},
        {"page without a dump and ids",
         page(pageNote("", "yellow", "handsome") + pageNote("", "yellow", "clever") +
              pageNote("", "red", "handsome")),
         "b86d31449f715db36d640d2e50ee3734 2f3a2e54b4a4a6dff48b1141f67adb5a "
         "3ce4e1c8ee55ec575d9b12ff49c58a26"},
    };
    expectEach(cases, shownIdentities);
}

}  // namespace
