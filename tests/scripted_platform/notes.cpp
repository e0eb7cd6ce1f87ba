#include "script.h"

using scripted::recordCall;
using scripted::script;
using veloran::utilities::Note;

namespace {

// The tags of this platform.
constexpr auto kColor = static_cast<Note::Tag>(201);
constexpr auto kText = static_cast<Note::Tag>(202);
constexpr auto kImage = static_cast<Note::Tag>(203);
constexpr auto kComment = static_cast<Note::Tag>(204);

std::string nameOf(const Note& note) {
    return "Note(" + std::to_string(note.noteId) + ")::";
}

std::string textOf(const Note& note, Note::Tag tag, const std::string& getter) {
    recordCall(nameOf(note) + getter);
    return note[tag].str;
}

}  // namespace

void scripted::addNote(const std::string& bookHash, const NoteFields& fields) {
    const std::string key = "key-" + std::to_string(fields.id);
    script().noteKeys[bookHash].push_back(key);
    Note& note = script().notes[key];
    note.noteId = fields.id;
    note.tags[Note::Tag::Uuid].str = fields.uuid;
    note.tags[Note::Tag::Anchor].json.emplace()["anchor"] = fields.anchor;
    note.tags[Note::Tag::Range].json.emplace()["begin"] = fields.begin;
    note.tags[kColor].str = fields.color;
    note.tags[kText].str = fields.text;
    note.tags[kImage].str = fields.image;
    note.tags[kComment].str = fields.comment;
}

namespace veloran::utilities {

std::string Note::getJsonTagElement(Tag tag, const std::string& key) const {
    recordCall(nameOf(*this) + "getJsonTagElement", static_cast<std::int32_t>(tag), key);
    const auto& json = (*this)[tag].json;
    return json ? json->get(key, "").asString() : "";
}

std::string Note::getColor() const { return textOf(*this, kColor, "getColor"); }
std::string Note::getText() const { return textOf(*this, kText, "getText"); }
std::string Note::getImage() const { return textOf(*this, kImage, "getImage"); }
std::string Note::getNote() const { return textOf(*this, kComment, "getNote"); }

}  // namespace veloran::utilities
