// Makes records of the events of a dump's JSON text.
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

// A handler for RapidJSON, hence the capitals. It accepts what format.h describes and
// nothing else: the first key, value or bracket out of place is refused, which ends the
// parsing. So neither depth nor size of foreign JSON costs anything.
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

    // The records read so far, and why the last event was refused.
    std::vector<BookRecord>& books() { return books_; }
    ImportResult failure() const { return failure_; }

private:
    enum class Field;

    bool number(std::int64_t value);
    bool version(std::int64_t value);
    bool text(std::string_view value);
    std::string* destination();  // of the text value that comes next; null: none is due
    bool endTag();

    NoteRecord& note() { return books_.back().notes.back(); }
    TagRecord& tag() { return note().tags.back(); }

    std::vector<BookRecord> books_;
    ImportResult failure_ = kDumpDamaged;
    int depth_ = 0;  // of open brackets: objects at odd depths, arrays at even ones
    Field field_{};  // the key whose value comes next
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
