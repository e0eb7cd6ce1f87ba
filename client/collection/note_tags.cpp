#include "client/collection/note_tags.h"

#include <algorithm>
#include <utility>

#include "client/text/numbers.h"
#include "readerlib/position_uri.h"
#include "store/note_tags.h"

namespace client {
namespace {

// Returns a JSON object whose member is a position on the page.
std::string positionJson(const char* member, double page) {
    return std::string("{\"") + member + "\":\"book:/position?page=" + decimal(page) +
           "\"}";
}

void addText(host::NoteRecord& record, host::NoteTag tag, std::string text,
             std::int64_t time) {
    if (!text.empty()) {
        record.tags.push_back({tag, std::move(text), std::nullopt, time});
    }
}

std::optional<double> pageAt(const std::string& uri) {
    double page = 0;
    return Veloran::ReaderLib::extractPageFromnURI(uri, page) ? std::optional(page)
                                                              : std::nullopt;
}

}  // namespace

host::NoteRecord toRecord(Note note) {
    host::NoteRecord record{note.uuid, {}};
    const std::int64_t time = std::max(note.time, note.changeTime);
    addText(record, host::kUuidTag, std::move(note.uuid), note.time);
    if (note.page) {
        record.tags.push_back(
            {host::kAnchorTag, "", positionJson("anchor", *note.page), time});
        record.tags.push_back(
            {host::kRangeTag, "", positionJson("begin", *note.page), time});
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
    note.page = pageAt(tags.getAnchorUri());
    note.color = tags.getColor();
    note.text = tags.getText();
    note.comment = tags.getNote();
    note.picture = tags.getImage();
    note.time = tags[veloran::utilities::Note::Tag::Uuid].timestamp;
    return note;
}

}  // namespace client
