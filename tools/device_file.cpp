#include "device_file.h"

#include <json/reader.h>
#include <json/writer.h>

#include <filesystem>
#include <memory>

#include "book_hash.h"
#include "complaint.h"
#include "decimal.h"
#include "files.h"
#include "json_object.h"
#include "note_tags.h"

namespace {

std::string compact(const Json::Value& json) {
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return Json::writeString(builder, json);
}

std::string positionUri(double page) { return "book:/position?page=" + decimal(page); }

Json::Value parse(const std::string& text, const std::string& path) {
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value json;
    std::string errors;
    try {
        if (reader->parse(text.data(), text.data() + text.size(), &json, &errors)) {
            return json;
        }
    } catch (const Json::Exception& error) {  // nested too deep
        errors = error.what();
    }
    throw Complaint(path + " is not JSON that a device file may hold:\n" + errors);
}

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

host::NoteRecord readNote(const Json::Value& json, const std::string& place,
                          const std::filesystem::path& folder) {
    JsonObject object(json, place);
    TagList tags(object.integer("timestamp").value_or(0));
    const std::string uuid = object.requiredText("uuid");
    const std::string image = object.text("image");
    tags.addText(host::kUuidTag, uuid);
    if (const auto page = object.number("page")) {
        tags.addUri(host::kAnchorTag, "anchor", positionUri(*page));
        tags.addUri(host::kRangeTag, "begin", positionUri(*page));
    }
    tags.addText(host::kColorTag, object.text("color"));
    tags.addText(host::kTextTag, object.text("text"));
    tags.addText(host::kCommentTag, object.text("comment"));
    tags.addText(host::kImageTag, image.empty() ? image : readFile(folder / image));
    object.complainAboutUnknownMembers();
    return {uuid, tags.take()};
}

std::string readHash(JsonObject& object) {
    std::string hash = object.requiredText("hash");
    if (!host::isBookHash(hash)) {
        object.complain("\"hash\" wants pairs of hexadecimal digits, in lower case");
    }
    return hash;
}

LoadedBook readBook(const Json::Value& json, const std::string& place,
                    const std::filesystem::path& folder) {
    JsonObject object(json, place);
    LoadedBook book;
    book.author = object.text("author");
    book.record.fastHash = readHash(object);
    book.record.title = object.text("title");
    book.record.path = object.text("path");
    std::size_t number = 0;
    for (const Json::Value& note : object.array("notes")) {
        const std::string notePlace = place + ", note " + std::to_string(++number);
        book.record.notes.push_back(readNote(note, notePlace, folder));
    }
    object.complainAboutUnknownMembers();
    return book;
}

}  // namespace

DeviceFile readDeviceFile(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    const Json::Value json = parse(readFile(path), path);
    JsonObject object(json, path);
    DeviceFile device;
    std::size_t number = 0;
    for (const Json::Value& book : object.array("books")) {
        const std::string place = path + ": book " + std::to_string(++number);
        device.books.push_back(readBook(book, place, folder));
    }
    const std::string styleSheet = object.text("style_sheet");
    device.styleSheet = styleSheet.empty() ? styleSheet : readFile(folder / styleSheet);
    object.complainAboutUnknownMembers();
    return device;
}
