// An annotation set of the W3C ("EPUB Annotations") with the notes of one book.
#include "client/listings/json_stream.h"
#include "client/listings/listing.h"
#include "client/text/annotation_id.h"
#include "client/text/percent_encoding.h"

namespace client {
namespace {

void writeTextIfAny(JsonText& json, const char* name, const std::string& text) {
    if (!text.empty()) {
        writeText(json, name, text);
    }
}

template <class Members>
void writeObject(JsonText& json, const char* name, const Members& members) {
    json.Key(name);
    json.StartObject();
    members();
    json.EndObject();
}

void writeGenerator(JsonText& json) {
    writeObject(json, "generator", [&] {
        writeText(json, "type", "Software");
        writeText(json, "name", "notes-export " NOTES_EXPORT_VERSION);
    });
}

void writeAbout(JsonText& json, const Book& book) {
    writeObject(json, "about", [&] {
        writeText(json, "dc:title", nameOf(book));
        if (!book.author.empty()) {
            json.Key("dc:creator");
            json.StartArray();
            json.String(book.author.data(), length(book.author));
            json.EndArray();
        }
    });
}

void writeHeadings(JsonText& json, const std::string& chapter) {
    json.Key("headings");
    json.StartArray();
    json.StartObject();
    json.Key("level");
    json.Int(1);
    writeText(json, "txt", chapter);
    json.EndObject();
    json.EndArray();
}

void writeMeta(JsonText& json, const Note& note) {
    writeObject(json, "meta", [&] {
        writeTextIfAny(json, "page", pageText(note));
        if (!note.place.chapter.empty()) {
            writeHeadings(json, note.place.chapter);
        }
    });
}

void writeTarget(JsonText& json, const Note& note, const std::string& source) {
    writeObject(json, "target", [&] {
        writeText(json, "source", source);
        if (!note.text.empty()) {
            writeObject(json, "selector", [&] {
                writeText(json, "type", "TextQuoteSelector");
                writeText(json, "exact", note.text);
            });
        }
        if (note.place.page || !note.place.chapter.empty()) {
            writeMeta(json, note);
        }
    });
}

void writeBody(JsonText& json, const Note& note) {
    writeObject(json, "body", [&] {
        writeText(json, "type", "TextualBody");
        writeText(json, "format", "text/plain");
        writeText(json, "value", note.comment);
        writeTextIfAny(json, "color", note.color);
    });
}

const char* motivationOf(const Note& note) {
    return !note.comment.empty() ? "commenting"
           : !note.text.empty()  ? "highlighting"
                                 : "bookmarking";
}

void writeAnnotation(JsonText& json, const Note& note, const std::string& source) {
    json.StartObject();
    writeText(json, "id", annotationIdOf(note.uuid));
    writeText(json, "type", "Annotation");
    writeText(json, "motivation", motivationOf(note));
    writeTextIfAny(json, "created", timeText(note));
    writeTarget(json, note, source);
    if (!note.comment.empty() || !note.color.empty()) {
        writeBody(json, note);
    }
    json.EndObject();
}

class AnnotationSet : public NoteListing {
public:
    using NoteListing::NoteListing;

    void startBook(const Book& book) override;
    void add(const Note& note) override;
    void end() override;

private:
    JsonStream stream_{out_};
    std::string source_;  // a reference to the book
    Note newest_;         // its time alone
};

void AnnotationSet::startBook(const Book& book) {
    source_ = linkTo(book.path.empty() ? nameOf(book) : book.path);
    JsonText& json = stream_.writer();
    json.StartObject();
    writeText(json, "@context", "https://www.w3.org/ns/epub-anno.jsonld");
    writeText(json, "id", "urn:x-notes:" + book.hash);
    writeText(json, "type", "AnnotationSet");
    writeGenerator(json);
    writeAbout(json, book);
    json.Key("items");
    json.StartArray();
}

void AnnotationSet::add(const Note& note) {
    const bool isNewer = newest_.time == 0 || note.time > newest_.time;
    newest_.time = note.time != 0 && isNewer ? note.time : newest_.time;
    writeAnnotation(stream_.writer(), note, source_);
    stream_.flush();
}

// Prints a time of the notes, so that the same notes give the same bytes on any day.
void AnnotationSet::end() {
    JsonText& json = stream_.writer();
    json.EndArray();
    writeTextIfAny(json, "generated", timeText(newest_));
    json.EndObject();
    stream_.endLine();
}

}  // namespace

constexpr ListingFormat kAnnotationFormat = {"annotations", nullptr,
                                             makeNoteListing<AnnotationSet>};

}  // namespace client
