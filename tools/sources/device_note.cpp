#include "sources/device_note.h"

#include <json/writer.h>

#include <utility>

#include "device/decimal.h"
#include "sources/json_object.h"
#include "store/note_tags.h"

namespace {

std::string compact(const Json::Value& json) {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return Json::writeString(builder, json);
}

std::string positionUri(double page) { return "book:/position?page=" + decimal(page); }

// Puts the tags of one note together; an empty text or JSON gives no tag.
class TagList {
public:
    explicit TagList(std::int64_t timestamp) : timestamp_(timestamp) {}

    void addText(std::int32_t tag, std::string text) {
        if (!text.empty()) {
            tags_.push_back({tag, std::move(text), std::nullopt, timestamp_});
        }
    }

    void addUri(std::int32_t tag, const char* element, const std::string& uri) {
        Json::Value json;
        json[element] = uri;
        tags_.push_back({tag, "", compact(json), timestamp_});
    }

    std::vector<host::TagRecord> take() { return std::move(tags_); }

private:
    std::int64_t timestamp_;
    std::vector<host::TagRecord> tags_;
};

}  // namespace

host::NoteRecord readNote(const Json::Value& json, const std::string& place,
                          const std::filesystem::path& folder) {
    JsonObject object(json, place);
    TagList tags(object.integer("timestamp").value_or(0));
    const std::string uuid = object.requiredText("uuid");
    tags.addText(host::kUuidTag, uuid);
    if (const auto page = object.number("page")) {
        tags.addUri(host::kAnchorTag, "anchor", positionUri(*page));
        tags.addUri(host::kRangeTag, "begin", positionUri(*page));
    }
    tags.addText(host::kColorTag, object.text("color"));
    tags.addText(host::kTextTag, object.text("text"));
    tags.addText(host::kCommentTag, object.text("comment"));
    tags.addText(host::kImageTag, object.file("image", folder).value_or(""));
    object.complainAboutUnknownMembers();
    return {uuid, tags.take()};
}
