// Lists for programs: one array of objects on one line. Characters that control a terminal
// are escaped, and bytes that are not UTF-8 become U+FFFD.
#include "client/listings/json_stream.h"
#include "client/listings/listing.h"

namespace client {
namespace {

// An empty text becomes null.
void writeNumber(JsonText& json, const char* name, const std::string& digits) {
    json.Key(name);
    if (digits.empty()) {
        json.Null();
    } else {
        json.RawValue(digits.data(), length(digits), rapidjson::kNumberType);
    }
}

void writeMembers(JsonText& json, const Book& book) {
    writeText(json, "hash", book.hash);
    writeText(json, "title", book.title);
    writeText(json, "author", book.author);
    writeText(json, "path", book.path);
}

void writeMembers(JsonText& json, const Note& note) {
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
    explicit JsonBooks(std::ostream& out) : BookListing(out) {
        json_.writer().StartArray();
    }

    void add(const Book& book) override {
        json_.writer().StartObject();
        writeMembers(json_.writer(), book);
        json_.writer().EndObject();
        json_.flush();
    }
    void end() override {
        json_.writer().EndArray();
        json_.endLine();
    }

private:
    JsonStream json_{out_};
};

class JsonNotes : public NoteListing {
public:
    JsonNotes(std::ostream& out, const NoteListingOptions& options)
        : NoteListing(out, options) {
        json_.writer().StartArray();
    }

    void startBook(const Book& book) override { hash_ = book.hash; }

    void add(const Note& note) override {
        json_.writer().StartObject();
        if (options_.severalBooks) {
            writeText(json_.writer(), "book", hash_);
        }
        writeMembers(json_.writer(), note);
        json_.writer().EndObject();
        json_.flush();
    }
    void end() override {
        json_.writer().EndArray();
        json_.endLine();
    }

private:
    JsonStream json_{out_};
    std::string hash_;
};

}  // namespace

constexpr ListingFormat kJsonFormat = {"json", makeBookListing<JsonBooks>,
                                       makeNoteListing<JsonNotes>};

}  // namespace client
