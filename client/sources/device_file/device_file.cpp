#include "client/sources/device_file/device_file.h"

#include <json/reader.h>

#include <filesystem>
#include <map>
#include <memory>
#include <string_view>

#include "client/collection/note.h"
#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/device_file/json_object.h"
#include "store/book_hash.h"

namespace client {
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
    throw UserError(path + " is not JSON that a device file may hold:\n" + errors);
}

std::string numbered(const std::string& kind, std::size_t number) {
    return kind + std::to_string(number);
}

// Throws UserError if two of the things in the object have the same `member`.
template <class Things, class Name>
void checkNames(const JsonObject& object, const Things& things, Name name, const char* kind,
                const char* member) {
    std::map<std::string_view, std::size_t> numbers;
    for (const auto& thing : things) {
        const std::size_t number = numbers.size() + 1;
        const auto [first, isNew] = numbers.try_emplace(name(thing), number);
        if (!isNew) {
            object.fail(numbered(kind, first->second) + numbered(" and ", number) +
                        " have one " + member);
        }
    }
}

std::string readHash(JsonObject& object) {
    std::string hash = object.requiredText("hash");
    if (!host::isBookHash(hash)) {
        object.fail("expected pairs of hexadecimal digits, in lower case, as \"hash\"");
    }
    return hash;
}

Note readNote(const Json::Value& json, const std::string& location,
              const std::filesystem::path& folder) {
    JsonObject object(json, location);
    Note note;
    note.time = object.integer("timestamp").value_or(0);
    note.uuid = object.requiredText("uuid");
    note.page = object.number("page");
    note.color = object.text("color");
    note.text = object.text("text");
    note.comment = object.text("comment");
    note.picture = object.file("image", folder).value_or("");
    object.requireNoOtherMembers();
    return note;
}

std::vector<Note> readNotes(JsonObject& book, const std::string& location,
                            const std::filesystem::path& folder) {
    std::vector<Note> notes;
    for (const Json::Value& note : book.array("notes")) {
        const std::string noteLocation = numbered(location + ", note ", notes.size() + 1);
        notes.push_back(readNote(note, noteLocation, folder));
    }
    const auto uuid = [](const Note& note) -> const auto& { return note.uuid; };
    checkNames(book, notes, uuid, "notes ", "uuid");
    return notes;
}

IncomingBook readBook(const Json::Value& json, const std::string& location,
                      const std::filesystem::path& folder) {
    JsonObject object(json, location);
    IncomingBook book;
    book.book = {readHash(object), object.text("title"), object.text("author"),
                 object.text("path")};
    for (const Note& note : readNotes(object, location, folder)) {
        book.notes.add(note);
    }
    object.requireNoOtherMembers();
    return book;
}

}  // namespace

bool isDeviceFile(std::string_view start) {
    const std::size_t first = start.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && start[first] == '{';
}

SourceContent readDeviceFile(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    const Json::Value json = parse(readFile(path), path);
    JsonObject object(json, path);
    SourceContent content;
    content.onKnownBook = host::OnKnownBook::Overwrite;
    for (const Json::Value& book : object.array("books")) {
        const std::string location = numbered(path + ": book ", content.books.size() + 1);
        content.books.push_back(readBook(book, location, folder));
    }
    const auto hash = [](const IncomingBook& book) -> const auto& {
        return book.book.hash;
    };
    checkNames(object, content.books, hash, "books ", "hash");
    content.styleSheet = object.file("style_sheet", folder);
    object.requireNoOtherMembers();
    return content;
}

}  // namespace client
