// Where notes are in their book, and in which order they are read.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <random>
#include <regex>
#include <string>
#include <vector>

#include "cases.h"
#include "client/collection/note_order.h"
#include "client/collection/note_tags.h"
#include "client/collection/position.h"
#include "client/pages/note_selection.h"
#include "client/pages/page_export.h"
#include "client/text/sort_keys.h"
#include "sample_source.h"

namespace {

// Reads "uuid@time page location order"; "-" is a missing part.
client::PlacedNote noteFrom(const std::string& text) {
    std::istringstream words(text);
    std::string page;
    std::string location;
    client::PlacedNote note;
    std::getline(words, note.uuid, '@');
    words >> note.time >> page >> location >> note.place.order;
    note.place.page = client::parseNumber<double>(page);
    note.place.location = client::parseNumber<std::int64_t>(location);
    return note;
}

std::string uuidsOf(const std::vector<client::PlacedNote>& notes) {
    std::string uuids;
    for (const client::PlacedNote& note : notes) {
        uuids += note.uuid;
    }
    return uuids;
}

// Sorts the notes, which are given one a line.
std::string sorted(const std::string& lines) {
    std::istringstream text(lines);
    std::vector<client::PlacedNote> notes;
    for (std::string line; std::getline(text, line);) {
        notes.push_back(noteFrom(line));
    }
    client::sortForReading(notes);
    return uuidsOf(notes) + (client::isPageOrder(notes) ? " as the library" : "");
}

TEST(ReadingOrder, IsThatOfPlaces) {
    const NamedCase cases[] = {
        {"pages", "a@1 12\nb@2 5.5\nc@3 100", "bac as the library"},
        {"parts of one page", "a@1 5.5\nb@2 5.25", "ba"},
        {"page before the first", "a@1 0\nb@2 -1", "ba"},
        {"page beyond the library's numbers", "a@1 4e9\nb@2 1", "ba"},
        {"locations", "a@1 - 170\nb@2 - 20", "ba as the library"},
        {"locations before pages", "a@1 - 170\nb@2 30 20\nc@3 1", "bac"},
        {"orders before pages", "a@1 1 - k.2\nb@2 2 - k.1\nc@3", "bca"},
        {"note without an order", "a@1 1 - k.2\nb@2 2 - k.1\nc@3 3", "abc as the library"},
        {"orders of two kinds", "a@1 1 - k.2\nb@2 2 - l.1", "ab as the library"},
        {"order of a note alone", "a@1 3\nb@2 1\nc@3 - - k.2", "bca"},
        {"place by time", "a@3 7\nb@2 7\nc@2 7", "bca"},
        {"no place, after the note made before", "a@1 3\nb@2 1\nc@2\nd@9\ne@0", "ebcda"},
        {"no place, after the last of one time", "a@5 3\nb@5 1\nc@5\nd@5 2", "bdac"},
        {"no place, by number in the file", "a@0 - - r.2\nb@0 - - r.1\nc@-1 - - r.3",
         "cba"},
        {"no place at all", "a@0\nb@0", "ab"},
        {"one note", "a@0", "a as the library"},
    };
    expectEach(cases, sorted);
}

std::string numbersIn(const std::string& text) { return client::sortKeyOfNumbers(text); }

TEST(SortKey, OrdersNumbersAsBytes) {
    const char* texts[] = {
        "", "a[0]", "a[2]", "a[2]/b.7", "a[10]", "99999999998", "99999999999999999999.1"};
    std::vector<std::string> keys;
    std::transform(std::begin(texts), std::end(texts), std::back_inserter(keys), numbersIn);
    EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end()));
    EXPECT_EQ(client::sortKeyOfName("a2/b10.c"), "a0000000002/b0000000010.c");
    EXPECT_EQ(numbersIn("00012x3"), ".0000000012.0000000003");
    EXPECT_LT(client::sortKeyOfFraction(0.25), client::sortKeyOfFraction(0.250001));
    EXPECT_EQ(client::sortKeyOfFraction(7), "1000000");
    EXPECT_EQ(client::sortKeyOfFraction(std::nan("")), "0000000");
}

std::string writtenAndRead(const std::string& chapter) {
    client::Place place;
    place.chapter = chapter;
    const std::string position = client::positionOf(place);
    return position.substr(position.find('?')) + ' ' + client::placeAt(position).chapter;
}

TEST(Position, KeepsPlace) {
    client::Place place;
    place.page = 12.5;
    place.location = 170;
    place.chapter = "1 & 2=\u00e9%#?\"\\";
    place.order = "k.0003";
    const std::string position = client::positionOf(place);
    EXPECT_EQ(position,
              "book:/position?page=12.5&location=170&chapter=1%20%26%202%3D%C3%A9%25%23%3F%"
              "22%5C&order=k.0003");
    EXPECT_EQ(show(client::placeAt(position)), show(place));
    EXPECT_EQ(show(client::placeAt("x?page=xi&location=1.5&page=2&chapter=%zz#&order=1")),
              "||%zz|");
    const std::string cut(998, 'a');
    EXPECT_EQ(writtenAndRead(cut + "bcd"), "?chapter=" + cut + "bc " + cut + "bc");
    EXPECT_EQ(writtenAndRead(cut + "\u00e9"), "?chapter=" + cut + ' ' + cut);
}

TEST(Position, IsReadFromAnyJson) {
    const struct {
        std::optional<std::string> anchor;
        std::optional<std::string> range;
        const char* place;
    } rows[] = {
        {std::nullopt, std::nullopt, "|||"},
        {"", "{}", "|||"},
        {"{}", R"({"begin":""})", "|||"},
        {R"({"anchor":1})", R"({"begin":"?page=7"})", "7|||"},
        {R"({ "anchor": "x?page=\u0035" })", R"({"begin":"?page=7"})", "5|||"},
        {R"({"anchor":"?chapter=a&order=k.1"})", R"({"begin":"?location=7"})", "|7|a|k.1"},
        {std::nullopt, R"({"begin":"?chapter=a"})", "||a|"},
    };
    for (const auto& [anchor, range, place] : rows) {
        EXPECT_EQ(show(client::placeIn(anchor, range)), place) << anchor.value_or("-");
    }
}

// Places that meet, of any kind.
client::Note randomNote(std::mt19937& random) {
    const auto below = [&random](std::size_t limit) { return random() % limit; };
    client::Note note;
    note.uuid = "u" + std::to_string(random());
    note.time = static_cast<std::int64_t>(below(4));
    if (below(2) == 0) {
        note.place.page = static_cast<double>(below(8)) / 2;
    }
    if (below(12) == 0) {
        note.place.location = static_cast<std::int64_t>(below(5));
    }
    if (below(2) == 0) {
        note.place.order = (below(20) == 0 ? "l." : "k.") + std::to_string(below(5));
    }
    if (!client::isKnown(note.place)) {  // else its number in the file counts
        note.time = static_cast<std::int64_t>(random());
    }
    return note;
}

std::string uuidsOn(const std::string& page) {
    const std::string html = readFile(page);
    const std::regex block("<div id=\"(u[0-9]*)");
    std::string uuids;
    for (std::sregex_iterator found(html.begin(), html.end(), block), end; found != end;
         ++found) {
        uuids += found->str(1);
    }
    return uuids;
}

std::string uuidsInList(host::ReaderStore& store) {
    return uuidsOf(notesInOrder(client::NoteOrder::Reading, "ab", store));
}

// However the notes come into the collection, the page and the list have one order.
TEST(ReadingOrder, DependsOnNotesAlone) {
    const ScratchDirectory scratch;
    std::mt19937 random(23);
    for (int book = 0; book < 60; ++book) {
        std::vector<client::Note> notes;
        for (std::size_t count = 1 + random() % 8; count > 0; --count) {
            notes.push_back(randomNote(random));
        }
        std::string orders[2];
        for (std::string& order : orders) {
            const ScratchDirectory device;
            std::shuffle(notes.begin(), notes.end(), random);
            addBook({"ab", "Emma", "", ""}, notes);
            host::ReaderStore store(host::kReaderDatabasePath);
            const client::NoteFilter all;
            client::NoteReader reader(all, client::NoteOrder::Reading);
            client::PageExport pages({"pages"});
            pages.add(store.findBook("ab").value(),
                      client::selectNotes(reader, "ab", false));
            order = uuidsInList(store);
            EXPECT_EQ(uuidsOn(pages.publish().at(0).path), order);
        }
        EXPECT_EQ(orders[0], orders[1]);
    }
}

}  // namespace
