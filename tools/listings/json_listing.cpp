#include <rapidjson/ostreamwrapper.h>

#include <cstdint>
#include <iostream>

#include "device/book_notes.h"
#include "device/decimal.h"
#include "dump/json_sax.h"
#include "listings/listing.h"
#include "text/utf8.h"

namespace {

using veloran::utilities::Note;
using Writer = host::JsonWriter<rapidjson::OStreamWrapper>;

rapidjson::SizeType length(const std::string& text) {
    return static_cast<rapidjson::SizeType>(text.size());
}

void writeText(Writer& json, const char* name, const std::string& text) {
    const std::string valid = host::validUtf8(text);
    json.Key(name);
    json.String(valid.data(), length(valid));
}

void writePage(Writer& json, const Note& note) {
    json.Key("page");
    if (const auto page = pageOf(note)) {
        const std::string digits = decimal(*page);
        json.RawValue(digits.data(), length(digits), rapidjson::kNumberType);
    } else {
        json.Null();
    }
}

void writeMembers(Writer& json, const ListedBook& book) {
    writeText(json, "hash", book.hash);
    writeText(json, "title", book.title);
    writeText(json, "author", book.author);
    writeText(json, "path", book.path);
}

void writeMembers(Writer& json, const Note& note) {
    json.Key("id");
    json.Uint64(note.noteId);
    writeText(json, "uuid", note.uuid());
    writePage(json, note);
    writeText(json, "color", note.getColor());
    writeText(json, "text", note.getText());
    writeText(json, "comment", note.getNote());
    json.Key("image_size");
    json.Uint64(note.getImage().size());
    json.Key("timestamp");
    json.Int64(std::int64_t{note[Note::Tag::Uuid].timestamp});
}

template <class Items>
void printArray(const Items& items) {
    rapidjson::OStreamWrapper stream(std::cout);
    Writer json(stream);
    json.StartArray();
    for (const auto& item : items) {
        json.StartObject();
        writeMembers(json, item);
        json.EndObject();
    }
    json.EndArray();
    std::cout << '\n';
}

}  // namespace

void printJson(const Books& books) { printArray(books); }
void printJson(const Notes& notes) { printArray(notes); }
