#include "client/collection/note.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "client/text/numbers.h"
#include "store/note_tags.h"

namespace {

// JSON text whose member is a position on the page; a number needs no escapes.
std::string positionJson(const char* member, double page) {
    return std::string("{\"") + member + "\":\"book:/position?page=" + decimal(page) +
           "\"}";
}

// Puts the tags of one note together; an empty text gives no tag.
class TagList {
public:
    explicit TagList(std::int64_t timestamp) : timestamp_(timestamp) {}

    void addText(std::int32_t tag, std::string text, std::int64_t timestamp) {
        if (!text.empty()) {
            tags_.push_back({tag, std::move(text), std::nullopt, timestamp});
        }
    }

    void addText(std::int32_t tag, std::string text) {
        addText(tag, std::move(text), timestamp_);
    }

    void addJson(std::int32_t tag, std::string json) {
        tags_.push_back({tag, "", std::move(json), timestamp_});
    }

    std::vector<host::TagRecord> take() { return std::move(tags_); }

private:
    std::int64_t timestamp_;
    std::vector<host::TagRecord> tags_;
};

}  // namespace

host::NoteRecord noteRecord(SourceNote note) {
    TagList tags(note.timestamp);
    tags.addText(host::kUuidTag, note.uuid);
    if (note.page) {
        tags.addJson(host::kAnchorTag, positionJson("anchor", *note.page));
        tags.addJson(host::kRangeTag, positionJson("begin", *note.page));
    }
    tags.addText(host::kColorTag, std::move(note.color));
    tags.addText(host::kTextTag, std::move(note.text));
    tags.addText(host::kCommentTag, std::move(note.comment),
                 std::max(note.timestamp, note.commentTimestamp));
    tags.addText(host::kImageTag, std::move(note.image));
    return {std::move(note.uuid), tags.take()};
}
