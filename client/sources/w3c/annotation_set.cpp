#include "client/sources/w3c/annotation_set.h"

#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>

#include <filesystem>
#include <utility>
#include <vector>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/content/book_shelf.h"
#include "client/sources/w3c/annotation.h"

namespace {

// Stops at the first member of the outermost object that only an annotation set has.
class Recogniser : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Recogniser> {
public:
    bool StartObject() { return ++depth_ > 0; }
    bool EndObject(rapidjson::SizeType /*members*/) { return --depth_ > 0; }
    bool StartArray() { return depth_++ > 0; }
    bool EndArray(rapidjson::SizeType /*elements*/) { return --depth_ > 0; }
    bool Key(const char* name, rapidjson::SizeType length, bool /*copy*/) {
        const std::string_view key(name, length);
        found_ = depth_ == 1 && (key == "@context" || key == "items" || key == "type");
        return !found_;
    }

    bool found() const { return found_; }

private:
    int depth_ = 0;
    bool found_ = false;
};

std::string_view withoutMark(std::string_view text) {
    constexpr std::string_view kByteOrderMark = "\ufeff";
    const bool isMarked = text.substr(0, kByteOrderMark.size()) == kByteOrderMark;
    return text.substr(isMarked ? kByteOrderMark.size() : 0);
}

JsonDocument parse(std::string& text, const std::string& path) {
    JsonDocument json;
    char* const start = text.data() + (text.size() - withoutMark(text).size());
    json.ParseInsitu<rapidjson::kParseIterativeFlag>(start);
    if (json.HasParseError()) {
        throw Complaint(path + " is not JSON: byte " +
                        std::to_string(json.GetErrorOffset()) + ": " +
                        rapidjson::GetParseError_En(json.GetParseError()));
    }
    return json;
}

std::string creatorsOf(const JsonValue& about) {
    std::string names;
    for (const char* member : {"dc:creator", "creator"}) {
        for (const JsonValue* creator : elementsOf(memberOf(about, member))) {
            const JsonValue& called = memberOf(*creator, "name");
            const std::string name = textOf(called.IsNull() ? *creator : called);
            names += (names.empty() || name.empty() ? "" : "; ") + name;
        }
    }
    return names;
}

// The first of these that the set has.
std::string titleOf(const JsonValue& set) {
    const JsonValue& about = memberOf(set, "about");
    for (const JsonValue* title : {&memberOf(about, "dc:title"), &memberOf(about, "title"),
                                   &memberOf(set, "label")}) {
        if (std::string text = textOf(*title); !text.empty()) {
            return text;
        }
    }
    return {};
}

// The annotations, also those of a collection's first page.
std::vector<const JsonValue*> itemsOf(const JsonValue& set, const std::string& path) {
    const JsonValue& items = memberOf(set, "items");
    const JsonValue& ofFirstPage = memberOf(memberOf(set, "first"), "items");
    if (!items.IsArray() && !ofFirstPage.IsArray()) {
        throw Complaint(path + ": \"items\" is missing or no array");
    }
    return elementsOf(items.IsArray() ? items : ofFirstPage);
}

// A name for the annotation that has none, of what stays the same when it is edited.
std::string uuidOf(const std::string& book, const SourceNote& note) {
    return derivedName({book, note.text, std::to_string(note.timestamp)});
}

}  // namespace

bool isAnnotationSet(std::string_view start) {
    const std::string_view text = withoutMark(start);
    rapidjson::MemoryStream stream(text.data(), text.size());
    Recogniser recogniser;
    host::JsonReader().Parse<rapidjson::kParseIterativeFlag>(stream, recogniser);
    return recogniser.found();
}

SourceContent readAnnotationSet(const std::string& path) {
    std::string text = readFile(path);
    const JsonDocument set = parse(text, path);
    const std::string title = titleOf(set);
    const std::string author = creatorsOf(memberOf(set, "about"));
    const std::string stem = std::filesystem::path(path).stem().string();
    SourceContent content;
    BookShelf shelf;
    std::size_t number = 0;
    for (const JsonValue* item : itemsOf(set, path)) {
        auto annotation = parseAnnotation(*item);
        if (!annotation) {
            content.skipped.add("items[" + std::to_string(number) + "]: no target");
        } else {
            const std::string& source = annotation->source;
            const std::size_t book = shelf.bookOf(!title.empty()   ? title
                                                  : source.empty() ? stem
                                                                   : source,
                                                  author);
            SourceNote& note = annotation->note;
            if (note.uuid.empty()) {
                note.uuid = uuidOf(shelf.hashOf(book), note);
            }
            shelf.add(book, std::move(note));
        }
        ++number;
    }
    content.books = shelf.take();
    return content;
}
