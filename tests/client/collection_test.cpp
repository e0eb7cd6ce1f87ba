// Notes in the collection, and the conditions that select some of them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "client/collection/note_filter.h"
#include "client/collection/note_reader.h"
#include "sample_source.h"

namespace {

client::Note note(unsigned long long id, const std::string& color, const std::string& text,
                  const std::string& comment, std::int64_t time) {
    client::Note result;
    result.id = id;
    result.uuid = 'u' + std::to_string(id);
    result.color = color;
    result.text = text;
    result.comment = comment;
    result.time = time;
    return result;
}

client::NoteFilter folded(const client::NoteFilter& filter) {
    client::NoteFilter result{filter.ids, {}, filter.since, {}};
    for (const std::string& color : filter.colors) {
        result.addColor(color);
    }
    if (filter.match) {
        result.setMatch(*filter.match);
    }
    return result;
}

TEST(NoteFilter, SelectsWhatMeetsEveryCondition) {
    const client::Note notes[] = {note(1, "Grün", "Straße", "", 100),
                                  note(2, "red", "", "A STRASSE", 200),
                                  note(3, "", "", "", 0)};
    const struct {
        const char* name;
        client::NoteFilter filter;  // its colours and its text are not folded yet
        const char* selected;
    } rows[] = {
        {"nothing set", {}, "123"},
        {"identifiers", {{3, 1, 9}, {}, {}, {}}, "13"},
        {"colour in other case", {{}, {"GRÜN"}, {}, {}}, "1"},
        {"several colours", {{}, {"grün", "Red"}, {}, {}}, "12"},
        {"start of a colour", {{}, {"re"}, {}, {}}, ""},
        {"no colour", {{}, {""}, {}, {}}, "3"},
        {"time", {{}, {}, 200, {}}, "2"},
        {"time before the epoch", {{}, {}, -1, {}}, "123"},
        {"text or comment", {{}, {}, {}, "straße"}, "12"},
        {"part of it", {{}, {}, {}, "a Str"}, "2"},
        {"all at once", {{1, 2}, {"red"}, 100, "s"}, "2"},
        {"one is not met", {{1, 2}, {"red"}, 201, "s"}, ""},
    };
    for (const auto& row : rows) {
        const client::NoteFilter filter = folded(row.filter);
        std::string selected;
        for (const client::Note& note : notes) {
            selected += filter.selects(note) ? std::to_string(note.id) : "";
        }
        EXPECT_EQ(selected, row.selected) << row.name;
        EXPECT_EQ(filter.isEmpty(), &row == rows) << row.name;
    }
}

TEST(Collection, GivesBackEveryFieldOfNote) {
    const ScratchDirectory scratch;
    std::vector<client::Note> notes = {note(1, "red", "a\u2029b", "c\xFF", 100),
                                       note(2, "", "", "", -5), note(3, "", "", "", 6)};
    notes[0].picture = std::string("\0\xFF", 2);
    notes[0].place.page = -1e300 / 3;
    notes[1].place.page = 1.0 / 3;
    addBook({"ab", "Emma", "", ""}, notes);
    client::NoteFilter filter;
    filter.ids = {1, 2, 9};
    client::NoteReader reader(filter, client::NoteOrder::Id);
    std::string shown;
    reader.read(reader.inOrder("ab"), [&](const client::Note& read) {
        shown += std::to_string(read.id) + show(read) + '\n';
    });
    EXPECT_EQ(shown, '1' + show(notes[0]) + "\n2" + show(notes[1]) + '\n');
    EXPECT_EQ(reader.missingId(), 9U);
}

}  // namespace
