#include "client/sources/device_file/device_file.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <utility>
#include <vector>

#include "client/collection/note.h"
#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/content/json.h"
#include "client/sources/device_file/json_object.h"
#include "client/text/affixes.h"
#include "store/book_hash.h"

namespace client {
namespace {

std::string numbered(const std::string& kind, std::size_t number) {
    return kind + std::to_string(number);
}

// Finds names that two things of an object share.
class Names {
public:
    // The name must stay valid.
    void add(std::string_view name) { names_.emplace_back(name, names_.size() + 1); }

    // Throws UserError if two of the things, which are called `kind`, share a name.
    void requireUnique(const JsonObject& object, const char* kind, const char* member);

private:
    std::vector<std::pair<std::string_view, std::size_t>> names_;
};

void Names::requireUnique(const JsonObject& object, const char* kind, const char* member) {
    std::sort(names_.begin(), names_.end());
    const auto twin =
        std::adjacent_find(names_.begin(), names_.end(),
                           [](const auto& a, const auto& b) { return a.first == b.first; });
    if (twin != names_.end()) {
        object.fail(numbered(kind, twin->second) + numbered(" and ", (twin + 1)->second) +
                    " have one " + member);
    }
}

std::string_view readHash(JsonObject& object) {
    const std::string_view hash = object.requiredText("hash");
    if (!host::isBookHash(hash)) {
        object.fail("expected pairs of hexadecimal digits, in lower case, as \"hash\"");
    }
    return hash;
}

Note readNote(JsonObject& object, std::string_view uuid,
              const std::filesystem::path& folder) {
    Note note;
    note.uuid = uuid;
    note.time = object.integer("timestamp").value_or(0);
    note.place.page = object.number("page");
    note.place.location = object.integer("location");
    note.place.chapter = object.text("chapter");
    note.place.order = object.text("order");
    note.color = object.text("color");
    note.text = object.text("text");
    note.comment = object.text("comment");
    note.picture = object.file("image", folder).value_or("");
    object.requireNoOtherMembers();
    return note;
}

void readNotes(JsonObject& book, const std::string& location,
               const std::filesystem::path& folder, PackedNotes& notes) {
    Names uuids;
    std::size_t number = 0;
    for (const JsonValue& json : book.array("notes").GetArray()) {
        JsonObject object(json, numbered(location + ", note ", ++number));
        const std::string_view uuid = object.requiredText("uuid");
        uuids.add(uuid);
        notes.add(readNote(object, uuid, folder));
    }
    uuids.requireUnique(book, "notes ", "uuid");
}

IncomingBook readBook(JsonObject& object, std::string_view hash,
                      const std::string& location, const std::filesystem::path& folder) {
    IncomingBook book;
    book.book.hash = hash;
    book.book.title = object.text("title");
    book.book.author = object.text("author");
    book.book.path = object.text("path");
    readNotes(object, location, folder, book.notes);
    object.requireNoOtherMembers();
    return book;
}

}  // namespace

bool isDeviceFile(std::string_view start) {
    const std::string_view text = withoutByteOrderMark(start);
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && text[first] == '{';
}

SourceContent readDeviceFile(const std::string& path) {
    const std::filesystem::path folder = std::filesystem::path(path).parent_path();
    std::string text = readFile(path);
    const JsonDocument json = parseJson(text, path);
    JsonObject object(json, path);
    SourceContent content;
    content.onKnownBook = host::OnKnownBook::Overwrite;
    const JsonValue& books = object.array("books");
    content.books.reserve(books.Size());
    Names hashes;
    for (const JsonValue& value : books.GetArray()) {
        const std::string location = numbered(path + ": book ", content.books.size() + 1);
        JsonObject book(value, location);
        const std::string_view hash = readHash(book);
        hashes.add(hash);
        content.books.push_back(readBook(book, hash, location, folder));
    }
    hashes.requireUnique(object, "books ", "hash");
    content.styleSheet = object.file("style_sheet", folder);
    object.requireNoOtherMembers();
    return content;
}

}  // namespace client
