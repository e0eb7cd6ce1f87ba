#include "dump/writer.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <utility>
#include <vector>

#include "dump/format.h"
#include "dump/gzip_writer.h"
#include "dump/json_sax.h"
#include "dump/note_json.h"
#include "text/base64.h"
#include "text/utf8.h"

namespace host {
namespace {

bool isText(const std::string& bytes) {
    return bytes.find('\0') == std::string::npos && isUtf8(bytes);
}

// Writes the JSON of a dump.
class DumpWriter {
public:
    DumpWriter(ReaderStore& store, const std::set<unsigned long long>& selected,
               GzipWriter& stream, std::size_t maxRecords)
        : store_(store),
          selected_(selected),
          stream_(stream),
          json_(stream),
          recordsLeft_(maxRecords) {}

    void write(const std::vector<BookEntry>& books);

private:
    void book(const BookEntry& book);
    void note(std::int64_t id);
    void tag(const TagRecord& tag);
    void startRecord();

    void key(const std::string& name) { json_.Key(name.data(), length(name)); }
    void string(const std::string& text) { json_.String(text.data(), length(text)); }
    void bytes(const std::string& name, const std::string& value);
    static rapidjson::SizeType length(const std::string& text) {
        return static_cast<rapidjson::SizeType>(text.size());
    }

    ReaderStore& store_;
    const std::set<unsigned long long>& selected_;
    GzipWriter& stream_;
    JsonWriter<GzipWriter> json_;
    NoteJson noteJson_;
    std::size_t recordsLeft_;
};

void DumpWriter::write(const std::vector<BookEntry>& books) {
    json_.StartObject();
    key("format");
    json_.String(kFormatName);
    key("version");
    json_.Int(kFormatVersion);
    key("books");
    json_.StartArray();
    for (const BookEntry& entry : books) {
        book(entry);
    }
    json_.EndArray();
    json_.EndObject();
    stream_.finish();
}

void DumpWriter::startRecord() {
    if (recordsLeft_-- == 0) {
        throw std::runtime_error("the dump exceeds its largest number of records");
    }
    json_.StartObject();
}

void DumpWriter::book(const BookEntry& book) {
    startRecord();
    bytes("fast_hash", book.fastHash);
    bytes("title", book.title);
    bytes("path", book.path);
    key("notes");
    json_.StartArray();
    for (const std::int64_t id : store_.noteIdsByCreation(book.id)) {
        if (selected_.empty() || selected_.count(static_cast<unsigned long long>(id)) > 0) {
            note(id);
        }
    }
    json_.EndArray();
    json_.EndObject();
}

void DumpWriter::note(std::int64_t id) {
    const NoteRecord note = store_.note(id).value();
    startRecord();
    bytes("uuid", note.uuid);
    key("tags");
    json_.StartArray();
    for (const TagRecord& record : note.tags) {
        tag(record);
    }
    json_.EndArray();
    json_.EndObject();
}

void DumpWriter::tag(const TagRecord& tag) {
    startRecord();
    key("tag");
    json_.Int(tag.tag);
    bytes("text", tag.text);
    if (tag.json && noteJson_.isJson(*tag.json)) {
        key("json");
        string(*tag.json);
    }
    key("timestamp");
    json_.Int64(tag.timestamp);
    json_.EndObject();
}

void DumpWriter::bytes(const std::string& name, const std::string& value) {
    if (isText(value)) {
        key(name);
        string(value);
        return;
    }
    key(name + kBase64Suffix);
    stream_.beginIncompressible();
    string(encodeBase64(value));
    stream_.endIncompressible();
}

std::vector<BookEntry> findBooks(ReaderStore& store,
                                 const std::set<unsigned long long>& ids) {
    std::vector<BookEntry> found;
    for (const unsigned long long id : ids) {
        if (auto book = store.findBook(static_cast<std::int64_t>(id))) {
            found.push_back(std::move(*book));
        }
    }
    std::sort(found.begin(), found.end(), [](const BookEntry& a, const BookEntry& b) {
        return a.fastHash < b.fastHash;
    });
    return found;
}

// Returns false if none of the books exists.
bool write(ReaderStore& store, const std::set<unsigned long long>& books,
           const std::set<unsigned long long>& notes, GzipWriter& stream,
           std::size_t maxRecords) {
    bool any = false;
    store.inReadTransaction([&] {
        const std::vector<BookEntry> found = findBooks(store, books);
        any = !found.empty();
        if (any) {
            DumpWriter(store, notes, stream, maxRecords).write(found);
        }
    });
    return any;
}

}  // namespace

bool writeDump(ReaderStore& store, const std::set<unsigned long long>& books,
               const std::set<unsigned long long>& notes, std::string& out,
               const DumpLimits& limits) {
    GzipWriter stream(out, limits.size);
    return write(store, books, notes, stream, limits.records);
}

}  // namespace host
