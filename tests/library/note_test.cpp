#include "utilities/note.h"

#include <gtest/gtest.h>

#include <ctime>

namespace {

using veloran::utilities::Note;

TEST(NoteRecord, NewValueHasCurrentTime) {
    const std::time_t before = std::time(nullptr);
    const Note::Value value;
    EXPECT_GE(value.timestamp, before);
    EXPECT_LE(value.timestamp, std::time(nullptr));
}

TEST(NoteRecord, LookupReturnsStoredOrSharedValue) {
    Note note;
    note.tags[Note::Tag::Uuid].str = "u";
    EXPECT_EQ(&note[Note::Tag::Uuid], &note.tags.at(Note::Tag::Uuid));

    const Note empty;
    const Note::Value& shared = empty[Note::Tag::Uuid];
    EXPECT_EQ(&note[static_cast<Note::Tag>(-1)], &shared);
    EXPECT_EQ(shared.str, "");
    EXPECT_FALSE(shared.json);
    EXPECT_TRUE(empty.tags.empty());
}

}  // namespace
