#include "client/collection/note_tags.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

#include "client/collection/position.h"
#include "client/text/affixes.h"
#include "dump/note_json.h"
#include "store/note_tags.h"

namespace client {
namespace {

// Members of positions and ranges.
constexpr const char* kAnchor = "anchor";
constexpr const char* kBegin = "begin";

std::string json(const char* member, const std::string& position) {
    return std::string("{\"") + member + "\":\"" + position + "\"}";
}

void addText(host::NoteRecord& record, host::NoteTag tag, std::string text,
             std::int64_t time) {
    if (!text.empty()) {
        record.tags.push_back({tag, std::move(text), std::nullopt, time});
    }
}

// Returns the member of a JSON text that json() gives; empty for other texts.
std::string_view plainMember(std::string_view text, const char* member) {
    const std::size_t start = json(member, "").size() - 2;
    constexpr std::size_t kLongest = 4096;  // that the host platform reads
    if (text.size() < start + 2 || text.size() > kLongest) {
        return {};
    }
    const std::string_view position = text.substr(start, text.size() - start - 2);
    return text == json(member, std::string(position)) ? position : std::string_view();
}

// Returns the text of the member; empty if there is none.
std::string memberOf(const std::optional<std::string>& text, const char* member) {
    if (!text) {
        return {};
    }
    const std::string_view position = plainMember(*text, member);
    if (!position.empty() && position.find_first_of("\"\\") == std::string_view::npos) {
        return std::string(position);
    }
    const auto parsed = host::NoteJson().parse(*text);
    const char* const end = member + std::strlen(member);
    const Json::Value* found =
        parsed && parsed->isObject() ? parsed->find(member, end) : nullptr;
    return found != nullptr && found->isString() ? found->asString() : std::string();
}

}  // namespace

host::NoteRecord toRecord(Note note) {
    host::NoteRecord record{note.uuid, {}};
    const std::int64_t time = std::max(note.time, note.changeTime);
    addText(record, host::kUuidTag, std::move(note.uuid), note.time);
    if (const std::string position = positionOf(note.place); !position.empty()) {
        // A rank is older than any known place.
        const std::int64_t positionTime =
            isKnown(note.place) ? time : std::min<std::int64_t>(time, 0);
        record.tags.push_back(
            {host::kAnchorTag, "", json(kAnchor, position), positionTime});
        record.tags.push_back({host::kRangeTag, "", json(kBegin, position), positionTime});
    }
    addText(record, host::kColorTag, std::move(note.color), time);
    addText(record, host::kTextTag, std::move(note.text), time);
    addText(record, host::kCommentTag, std::move(note.comment),
            std::max(note.time, note.commentTime));
    addText(record, host::kImageTag, std::move(note.picture), time);
    return record;
}

std::string positionIn(const host::TagRecord& tag) {
    const char* const member = tag.tag == host::kAnchorTag  ? kAnchor
                               : tag.tag == host::kRangeTag ? kBegin
                                                            : nullptr;
    return member == nullptr ? "" : std::string(plainMember(tag.json.value_or(""), member));
}

Place placeIn(const std::optional<std::string>& anchor,
              const std::optional<std::string>& range) {
    const std::string position = memberOf(anchor, kAnchor);
    Place place = placeAt(position);
    if (!place.page && !place.location && range) {
        const Place passage = placeAt(memberOf(range, kBegin));
        place = position.empty() ? passage : place;
        place.page = passage.page;
        place.location = passage.location;
    }
    return place;
}

Note toNote(std::int64_t id, host::NoteRecord record) {
    Note note;
    note.id = static_cast<unsigned long long>(id);
    note.uuid = record.uuid;
    std::optional<std::string> anchor;
    std::optional<std::string> range;
    for (host::TagRecord& tag : record.tags) {
        switch (tag.tag) {
            case host::kUuidTag:
                note.uuid = std::move(tag.text);
                note.time = tag.timestamp;
                break;
            case host::kAnchorTag:
                anchor = std::move(tag.json);
                break;
            case host::kColorTag:
                note.color = std::move(tag.text);
                break;
            case host::kTextTag:
                note.text = std::move(tag.text);
                break;
            case host::kRangeTag:
                range = std::move(tag.json);
                break;
            case host::kCommentTag:
                note.comment = std::move(tag.text);
                break;
            case host::kImageTag:
                note.picture = std::move(tag.text);
                break;
            default:
                break;
        }
    }
    note.place = placeIn(anchor, range);
    return note;
}

}  // namespace client
