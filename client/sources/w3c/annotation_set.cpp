#include "client/sources/w3c/annotation_set.h"

#include <rapidjson/memorystream.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <tuple>
#include <utility>
#include <vector>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/sources/content/book_shelf.h"
#include "client/sources/content/json.h"
#include "client/sources/w3c/annotation.h"
#include "client/sources/w3c/json_ld.h"
#include "client/sources/w3c/orders.h"
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
std::vector<const JsonValue*> annotationsIn(const JsonValue& set, const std::string& path) {
    const JsonValue& items = memberOf(set, "items");
    const JsonValue& ofFirstPage = memberOf(memberOf(set, "first"), "items");
    if (!items.IsArray() && !ofFirstPage.IsArray()) {
        throw UserError(path + ": \"items\" is missing or not an array");
    }
    return elementsOf(items.IsArray() ? items : ofFirstPage);
}

struct Item {
    Annotation annotation;
    ShelvedBook* book;
    bool isNew = true;  // in its book
};

// Puts the books of the annotations on the shelf.
std::vector<Item> itemsIn(const JsonValue& set, const std::string& path, BookShelf& shelf,
                          SkippedRecords& skipped) {
    const std::vector<const JsonValue*> annotations = annotationsIn(set, path);
    const Orders orders(annotations);
    const std::string title = titleOf(set);
    const std::string author = creatorsOf(memberOf(set, "about"));
    const std::string fileName = std::filesystem::path(path).stem().string();
    std::vector<Item> items;
    for (std::size_t i = 0; i < annotations.size(); ++i) {
        if (auto annotation = parseAnnotation(*annotations[i])) {
            const std::string& source = annotation->source;
            ShelvedBook& book = shelf.book(!title.empty()    ? title
                                           : !source.empty() ? source
                                                             : fileName,
                                           author);
            annotation->note.place.order = orders.of(*annotations[i]);
            items.push_back({std::move(*annotation), &book});
        } else {
            skipped.add("items[" + std::to_string(i) + "]: no target");
        }
    }
    return items;
}

// Gives the notes their uuids by time, then by content, because the first one of an id
// keeps it: so the uuids do not depend on the order in the file.
void identify(std::vector<Item>& items) {
    std::vector<Item*> sorted;
    sorted.reserve(items.size());
    for (Item& item : items) {
        sorted.push_back(&item);
    }
    const auto keyOf = [](const Item* item) {
        const Note& note = item->annotation.note;
        return std::tie(note.time, note.text, note.comment, note.color);
    };
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](const Item* a, const Item* b) { return keyOf(a) < keyOf(b); });
    for (Item* item : sorted) {
        Annotation& annotation = item->annotation;
        item->isNew = item->book->identify(annotation.note, annotation.identity,
                                           annotation.formerIdentities);
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
    BookShelf shelf;
    SourceContent content;
    std::vector<Item> items = itemsIn(set, path, shelf, content.skipped);
    identify(items);
    for (Item& item : items) {
        if (item.isNew) {
            item.book->content().notes.add(std::move(item.annotation.note));
        }
    }
    content.books = shelf.take();
    return content;
}

}  // namespace client
