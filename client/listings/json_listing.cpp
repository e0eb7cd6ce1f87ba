// Lists for programs: one array of objects on one line. Characters that control a terminal
// are escaped, and bytes that are not UTF-8 become U+FFFD.
#include "client/listings/json_stream.h"
#include "client/listings/listing.h"

namespace client {
namespace {

using Writer = JsonText;

// The array, from its first bracket to the line end after its last.
class Array {
public:
    explicit Array(std::ostream& out) : out_(out), stream_(out) {
        stream_.json().StartArray();
    }

    template <class Members>
    void add(const Members& members) {
        stream_.json().StartObject();
        members(stream_.json());
        stream_.json().EndObject();
        stream_.flush();
    }

    void end() {
        stream_.json().EndArray();
        stream_.flush();
        out_ << '\n';
    }

private:
    std::ostream& out_;
    JsonStream stream_;
};

// An empty text becomes null.
void writeNumber(Writer& json, const char* name, const std::string& digits) {
    json.Key(name);
    if (digits.empty()) {
        json.Null();
    } else {
        json.RawValue(digits.data(), length(digits), rapidjson::kNumberType);
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
    writeText(json, "kind", kindOf(note));
    writeNumber(json, "page", pageText(note));
    writeNumber(json, "location", locationText(note));
    writeText(json, "chapter", note.place.chapter);
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
