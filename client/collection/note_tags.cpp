#include "client/collection/note_tags.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "client/collection/position.h"
#include "client/text/affixes.h"
#include "dump/note_json.h"
#include "store/note_tags.h"

namespace client {
namespace {

// The JSON text of a position, around its URI.
constexpr std::string_view kAnchorStart = R"({"anchor":")";
constexpr std::string_view kRangeStart = R"({"begin":")";
constexpr std::string_view kEnd = R"("})";

std::string json(std::string_view start, const std::string& position) {
    return std::string(start).append(position).append(kEnd);
}

void addText(host::NoteRecord& record, host::NoteTag tag, std::string text,
             std::int64_t time) {
    if (!text.empty()) {
        record.tags.push_back({tag, std::move(text), std::nullopt, time});
    }
}

// Returns the position in a text that json() gives; empty for other texts.
std::string_view plainPosition(std::string_view text, std::string_view start) {
    constexpr std::size_t kLongest = 4096;  // that the host platform reads
    if (text.size() > kLongest || text.size() < start.size() + kEnd.size() ||
        !startsWith(text, start) || !endsWith(text, kEnd)) {
        return {};
    }
    text = text.substr(start.size(), text.size() - start.size() - kEnd.size());
    return text.find_first_of("\"\\") == std::string_view::npos ? text : "";
}

// Returns the URI in any JSON text; empty if there is none.
std::string uriIn(const std::optional<std::string>& text, std::string_view start) {
    if (!text) {
        return {};
    }
    if (const auto position = plainPosition(*text, start); !position.empty()) {
        return std::string(position);
    }
    const std::string_view member = start.substr(2, start.size() - 5);
    const auto parsed = host::NoteJson().parse(*text);
    const Json::Value* found =
        parsed && parsed->isObject()
            ? parsed->find(member.data(), member.data() + member.size())
            : nullptr;
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
            {host::kAnchorTag, "", json(kAnchorStart, position), positionTime});
        record.tags.push_back(
            {host::kRangeTag, "", json(kRangeStart, position), positionTime});
    }
    addText(record, host::kColorTag, std::move(note.color), time);
    addText(record, host::kTextTag, std::move(note.text), time);
    addText(record, host::kCommentTag, std::move(note.comment),
            std::max(note.time, note.commentTime));
    addText(record, host::kImageTag, std::move(note.picture), time);
    return record;
}

std::string positionIn(const host::TagRecord& tag) {
    const bool isPosition = tag.tag == host::kAnchorTag || tag.tag == host::kRangeTag;
    return isPosition && tag.json
               ? std::string(plainPosition(
                     *tag.json, tag.tag == host::kAnchorTag ? kAnchorStart : kRangeStart))
               : std::string();
}

Place placeIn(const std::optional<std::string>& anchor,
              const std::optional<std::string>& range) {
    const std::string position = uriIn(anchor, kAnchorStart);
    Place place = placeAt(position);
    if (!place.page && !place.location && range) {
        const Place passage = placeAt(uriIn(range, kRangeStart));
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
