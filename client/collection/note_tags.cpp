#include "client/collection/note_tags.h"

#include <algorithm>
#include <utility>

#include "client/collection/position.h"
#include "store/note_tags.h"

namespace client {
namespace {

std::string json(const char* member, const std::string& position) {
    return std::string("{\"") + member + "\":\"" + position + "\"}";
}

void addText(host::NoteRecord& record, host::NoteTag tag, std::string text,
             std::int64_t time) {
    if (!text.empty()) {
        record.tags.push_back({tag, std::move(text), std::nullopt, time});
    }
}

// Returns the place of the note, or else that of its passage, as the library does.
Place placeOf(const veloran::utilities::Note& tags) {
    Place place = placeAt(tags.getAnchorUri());
    return place.page || place.location
               ? place
               : placeAt(
                     tags.getJsonTagElement(veloran::utilities::Note::Tag::Range, "begin"));
}

}  // namespace

host::NoteRecord toRecord(Note note) {
    host::NoteRecord record{note.uuid, {}};
    const std::int64_t time = std::max(note.time, note.changeTime);
    addText(record, host::kUuidTag, std::move(note.uuid), note.time);
    if (const std::string position = positionOf(note.place); !position.empty()) {
        record.tags.push_back({host::kAnchorTag, "", json("anchor", position), time});
        record.tags.push_back({host::kRangeTag, "", json("begin", position), time});
    }
    addText(record, host::kColorTag, std::move(note.color), time);
    addText(record, host::kTextTag, std::move(note.text), time);
    addText(record, host::kCommentTag, std::move(note.comment),
            std::max(note.time, note.commentTime));
    addText(record, host::kImageTag, std::move(note.picture), time);
    return record;
}

Note toNote(const veloran::utilities::Note& tags) {
    Note note;
    note.id = tags.noteId;
    note.uuid = tags.uuid();
    note.place = placeOf(tags);
    note.color = tags.getColor();
    note.text = tags.getText();
    note.comment = tags.getNote();
    note.picture = tags.getImage();
    note.time = tags[veloran::utilities::Note::Tag::Uuid].timestamp;
    return note;
}

}  // namespace client
