#include "client/sources/w3c/annotation_set.h"

#include <rapidjson/memorystream.h>

#include <filesystem>
#include <utility>
#include <vector>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/content/book_shelf.h"
#include "client/sources/content/json.h"
#include "client/sources/w3c/annotation.h"
#include "client/sources/w3c/json_ld.h"
#include "client/sources/w3c/orders.h"
#include "client/sources/w3c/twins.h"
#include "client/text/affixes.h"

namespace client {
namespace {

// Stops at the first member of the outermost object that only annotation sets have.
class Recogniser : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Recogniser> {
public:
    bool StartObject() {
        ++depth_;
        return true;
    }
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

// Returns the first title in the set.
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

// Returns the annotations of the set, or of a collection's first page.
std::vector<const JsonValue*> itemsOf(const JsonValue& set, const std::string& path) {
    const JsonValue& items = memberOf(set, "items");
    const JsonValue& ofFirstPage = memberOf(memberOf(set, "first"), "items");
    if (!items.IsArray() && !ofFirstPage.IsArray()) {
        throw UserError(path + ": \"items\" is missing or not an array");
    }
    return elementsOf(items.IsArray() ? items : ofFirstPage);
}

// Reads the items of a set onto a shelf.
class Reader {
public:
    Reader(const JsonValue& set, const std::string& path)
        : title_(titleOf(set)),
          author_(creatorsOf(memberOf(set, "about"))),
          fileName_(std::filesystem::path(path).stem().string()) {}

    SourceContent read(const std::vector<const JsonValue*>& items);

private:
    void addAnnotation(Annotation annotation);

    const std::string title_;
    const std::string author_;
    const std::string fileName_;
    BookShelf shelf_;
};

SourceContent Reader::read(const std::vector<const JsonValue*>& items) {
    SourceContent content;
    const Orders orders(items);
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (auto annotation = parseAnnotation(*items[i])) {
            annotation->note.place.order = orders.of(*items[i]);
            addAnnotation(std::move(*annotation));
        } else {
            content.skipped.add("items[" + std::to_string(i) + "]: no target");
        }
    }
    content.books = shelf_.take();
    return content;
}

void Reader::addAnnotation(Annotation annotation) {
    const std::string& title = !title_.empty()             ? title_
                               : annotation.source.empty() ? fileName_
                                                           : annotation.source;
    ShelvedBook& book = shelf_.book(title, author_);
    if (annotation.note.uuid.empty()) {
        book.add(std::move(annotation.note), annotation.identity,
                 annotation.formerIdentities);
    } else {
        book.add(std::move(annotation.note));
    }
}

}  // namespace

bool isAnnotationSet(std::string_view start) {
    const std::string_view text = withoutByteOrderMark(start);
    rapidjson::MemoryStream stream(text.data(), text.size());
    Recogniser recogniser;
    host::JsonReader().Parse<rapidjson::kParseIterativeFlag>(stream, recogniser);
    return recogniser.found();
}

SourceContent readAnnotationSet(const std::string& path) {
    std::string text = readFile(path);
    const JsonDocument set = parseJson(text, path);
    std::vector<const JsonValue*> items = itemsOf(set, path);
    sortTwins(items);
    return Reader(set, path).read(items);
}

}  // namespace client
