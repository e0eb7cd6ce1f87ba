// Lists for programs: one array of objects on one line. Bytes that are not UTF-8 become
// U+FFFD.
#include <rapidjson/ostreamwrapper.h>

#include <cstdint>

#include "client/listings/listing.h"
#include "client/text/numbers.h"
#include "dump/json_sax.h"
#include "text/utf8.h"

namespace client {
namespace {

rapidjson::SizeType length(const std::string& text) {
    return static_cast<rapidjson::SizeType>(text.size());
}

// The array, from its first bracket to the line end after its last.
class Array {
public:
    explicit Array(std::ostream& out) : out_(out) { json_.StartArray(); }

    template <class Members>
    void add(const Members& members) {
        json_.StartObject();
        members(json_);
        json_.EndObject();
    }

    void end() {
        json_.EndArray();
        out_ << '\n';
    }

    using Writer = host::JsonWriter<rapidjson::OStreamWrapper>;

private:
    std::ostream& out_;
    rapidjson::OStreamWrapper stream_{out_};
    Writer json_{stream_};
};

using Writer = Array::Writer;

void writeText(Writer& json, const char* name, const std::string& text) {
    const std::string valid = host::validUtf8(text);
    json.Key(name);
    json.String(valid.data(), length(valid));
}

void writePage(Writer& json, const Note& note) {
    json.Key("page");
    if (note.page) {
        const std::string digits = decimal(*note.page);
        json.RawValue(digits.data(), length(digits), rapidjson::kNumberType);
    } else {
        json.Null();
    }
}

void writeMembers(Writer& json, const Book& book) {
    writeText(json, "hash", book.hash);
    writeText(json, "title", book.title);
    writeText(json, "author", book.author);
    writeText(json, "path", book.path);
}

void writeMembers(Writer& json, const Note& note) {
    json.Key("id");
    json.Uint64(note.id);
    writeText(json, "uuid", note.uuid);
    writePage(json, note);
    writeText(json, "color", note.color);
    writeText(json, "text", note.text);
    writeText(json, "comment", note.comment);
    json.Key("image_size");
    json.Uint64(note.picture.size());
    json.Key("timestamp");
    json.Int64(note.time);
}

class JsonBooks : public BookListing {
public:
    explicit JsonBooks(std::ostream& out) : array_(out) {}

    void add(const Book& book) override {
        array_.add([&](Writer& json) { writeMembers(json, book); });
    }
    void end() override { array_.end(); }

private:
    Array array_;
};

class JsonNotes : public NoteListing {
public:
    JsonNotes(std::ostream& out, const NoteListingOptions& options)
        : array_(out), severalBooks_(options.severalBooks) {}

    void startBook(const Book& book) override { hash_ = book.hash; }

    void add(const Note& note) override {
        array_.add([&](Writer& json) {
            if (severalBooks_) {
                writeText(json, "book", hash_);
            }
            writeMembers(json, note);
        });
    }
    void end() override { array_.end(); }

private:
    Array array_;
    bool severalBooks_;
    std::string hash_;
};

}  // namespace

constexpr ListingFormat kJsonFormat = listingFormat<JsonBooks, JsonNotes>("json");

}  // namespace client
