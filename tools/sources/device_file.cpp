#include "sources/device_file.h"

#include <json/reader.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string_view>

#include "device/whole_file.h"
#include "sources/device_note.h"
#include "sources/json_object.h"
#include "store/book_hash.h"
#include "terminal/complaint.h"
#include "utilities/serialization_utils.h"

namespace {

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

std::string numbered(const std::string& kind, std::size_t number) {
    return kind + std::to_string(number);
}

// Complains when two of the things in the object have one name, which is their `member`.
template <class Thing>
void checkNames(const JsonObject& object, const std::vector<Thing>& things,
                std::string Thing::*name, const char* kind, const char* member) {
    std::map<std::string_view, std::size_t> numbers;
    for (const Thing& thing : things) {
        const std::size_t number = numbers.size() + 1;
        const auto [first, isNew] = numbers.try_emplace(thing.*name, number);
        if (!isNew) {
            object.complain(numbered(kind, first->second) + numbered(" and ", number) +
                            " have one " + member);
        }
    }
}

std::string readHash(JsonObject& object) {
    std::string hash = object.requiredText("hash");
    if (!host::isBookHash(hash)) {
        object.complain("\"hash\" wants pairs of hexadecimal digits, in lower case");
    }
    return hash;
}

std::vector<host::NoteRecord> readNotes(JsonObject& book, const std::string& place,
                                        const std::filesystem::path& folder) {
    std::vector<host::NoteRecord> notes;
    for (const Json::Value& note : book.array("notes")) {
        const std::string notePlace = numbered(place + ", note ", notes.size() + 1);
        notes.push_back(readNote(note, notePlace, folder));
    }
    checkNames(book, notes, &host::NoteRecord::uuid, "notes ", "uuid");
    return notes;
}

void readBook(const Json::Value& json, const std::string& place,
              const std::filesystem::path& folder, DeviceFile& device) {
    using veloran::utilities::SerializationUtils;
    JsonObject object(json, place);
    const std::string hash = readHash(object);
    const std::string title = object.text("title");
    const std::string path = object.text("path");
    device.libraryBooks.push_back(
        {SerializationUtils::FromHex(hash), title, object.text("author"), path});
    device.records.push_back({hash, title, path, readNotes(object, place, folder)});
    object.complainAboutUnknownMembers();
}

}  // namespace

DeviceFile readDeviceFile(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    const Json::Value json = parse(readFile(path), path);
    JsonObject object(json, path);
    DeviceFile device;
    for (const Json::Value& book : object.array("books")) {
        const std::string place = numbered(path + ": book ", device.records.size() + 1);
        readBook(book, place, folder, device);
    }
    checkNames(object, device.records, &host::BookRecord::fastHash, "books ", "hash");
    device.styleSheet = object.file("style_sheet", folder);
    object.complainAboutUnknownMembers();
    return device;
}
