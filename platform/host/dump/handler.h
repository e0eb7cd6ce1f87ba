// Builds records from the events of a dump's JSON text.
#pragma once

#include <rapidjson/rapidjson.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dump/import_result.h"
#include "dump/note_json.h"
#include "store/records.h"

namespace host {

// A handler for RapidJSON, which names its members. It accepts only the format of format.h.
// The first other key, value or bracket ends the parsing, so that foreign JSON of any depth
// or size takes no time.
class DumpHandler {
public:
    explicit DumpHandler(std::size_t maxRecords) : recordsLeft_(maxRecords) {}

    bool StartObject();
    bool Key(const char* name, rapidjson::SizeType length, bool copy);
    bool EndObject(rapidjson::SizeType members);
    bool StartArray();
    bool EndArray(rapidjson::SizeType elements);
    bool String(const char* value, rapidjson::SizeType length, bool copy);

    bool Int(int value) { return number(value); }
    bool Uint(unsigned value) { return number(value); }
    bool Int64(std::int64_t value) { return number(value); }
    bool Uint64(std::uint64_t value);
    static bool Double(double /*value*/) { return false; }
    static bool RawNumber(const char* /*digits*/, rapidjson::SizeType /*length*/,
                          bool /*copy*/) {
        return false;
    }
    static bool Bool(bool /*value*/) { return false; }
    static bool Null() { return false; }

    // Return the records read so far, and the reason why the last event was rejected.
    std::vector<BookRecord>& books() { return books_; }
    ImportResult failure() const { return failure_; }

private:
    enum class Field;

    bool number(std::int64_t value);
    bool version(std::int64_t value);
    bool text(std::string_view value);
    std::string* destination();  // of the next text value; null if none is expected
    bool endTag();

    NoteRecord& note() { return books_.back().notes.back(); }
    TagRecord& tag() { return note().tags.back(); }

    std::vector<BookRecord> books_;
    ImportResult failure_ = kDumpDamaged;
    int depth_ = 0;  // open brackets: objects at odd depths, arrays at even ones
    Field field_{};  // key of the next value
    NoteJson noteJson_;
    std::size_t recordsLeft_;
    bool base64_ = false;
    bool formatKnown_ = false;
    bool versionKnown_ = false;
    bool booksKnown_ = false;
    bool tagKnown_ = false;
    bool timestampKnown_ = false;
};

}  // namespace host
