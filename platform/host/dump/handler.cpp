#include "dump/handler.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <utility>

#include "dump/format.h"
#include "store/book_hash.h"
#include "text/base64.h"
#include "text/utf8.h"

namespace host {

enum class DumpHandler::Field {
    kNone,
    kFormat,
    kVersion,
    kBooks,
    kFastHash,
    kTitle,
    kPath,
    kNotes,
    kUuid,
    kTags,
    kTag,
    kText,
    kJson,
    kTimestamp,
};

namespace {

constexpr int kBookDepth = 3;
constexpr int kNoteDepth = 5;
constexpr int kTagDepth = 7;

bool dropSuffix(std::string_view& name, std::string_view suffix) {
    const bool present =
        name.size() > suffix.size() && name.substr(name.size() - suffix.size()) == suffix;
    name.remove_suffix(present ? suffix.size() : 0);
    return present;
}

}  // namespace

bool DumpHandler::Key(const char* name, rapidjson::SizeType length, bool /*copy*/) {
    struct Known {
        int depth;
        std::string_view name;
        Field field;
        bool bytes = false;  // may be Base64
    };
    static constexpr Known kKeys[] = {
        // The most frequent ones first.
        {kTagDepth, "tag", Field::kTag},
        {kTagDepth, "text", Field::kText, true},
        {kTagDepth, "json", Field::kJson},
        {kTagDepth, "timestamp", Field::kTimestamp},
        {kNoteDepth, "uuid", Field::kUuid, true},
        {kNoteDepth, "tags", Field::kTags},
        {kBookDepth, "fast_hash", Field::kFastHash},
        {kBookDepth, "title", Field::kTitle, true},
        {kBookDepth, "path", Field::kPath, true},
        {kBookDepth, "notes", Field::kNotes},
        {1, "format", Field::kFormat},
        {1, "version", Field::kVersion},
        {1, "books", Field::kBooks},
    };
    std::string_view key(name, length);
    base64_ = dropSuffix(key, kBase64Suffix);
    const auto* const known =
        std::find_if(std::begin(kKeys), std::end(kKeys), [&](const Known& candidate) {
            return candidate.depth == depth_ && candidate.name == key &&
                   (candidate.bytes || !base64_);
        });
    field_ = known == std::end(kKeys) ? Field::kNone : known->field;
    return field_ != Field::kNone;
}

bool DumpHandler::StartObject() {
    if (depth_ % 2 != 0) {
        return false;
    }
    ++depth_;
    if (depth_ == kBookDepth) {
        books_.emplace_back();
    } else if (depth_ == kNoteDepth) {
        books_.back().notes.emplace_back();
    } else if (depth_ == kTagDepth) {
        note().tags.emplace_back();
        tagKnown_ = timestampKnown_ = false;
    }
    const bool isRecord = depth_ >= kBookDepth;
    return depth_ <= kTagDepth && (!isRecord || recordsLeft_-- > 0);
}

bool DumpHandler::EndObject(rapidjson::SizeType /*members*/) {
    switch (depth_--) {
        case kTagDepth:
            return endTag();
        case kNoteDepth:
            return !note().uuid.empty();
        case kBookDepth:
            return isBookHash(books_.back().fastHash);
        default:
            return booksKnown_;
    }
}

bool DumpHandler::endTag() {
    const TagRecord& ended = tag();
    return tagKnown_ && timestampKnown_ && (!ended.json || noteJson_.isJson(*ended.json));
}

bool DumpHandler::StartArray() {
    const bool expected = (field_ == Field::kBooks && versionKnown_) ||
                          field_ == Field::kNotes || field_ == Field::kTags;
    field_ = Field::kNone;
    booksKnown_ = booksKnown_ || expected;
    depth_ += expected ? 1 : 0;
    return expected;
}

bool DumpHandler::EndArray(rapidjson::SizeType /*elements*/) {
    --depth_;
    return true;
}

bool DumpHandler::String(const char* value, rapidjson::SizeType length, bool /*copy*/) {
    const bool accepted = text(std::string_view(value, length));
    field_ = Field::kNone;
    return accepted;
}

bool DumpHandler::text(std::string_view value) {
    if (field_ == Field::kFormat) {
        formatKnown_ = value == kFormatName;
        return formatKnown_;
    }
    std::string* const target = destination();
    if (target == nullptr) {
        return false;
    }
    if (!base64_) {
        target->assign(value);
        return isUtf8(value);
    }
    std::optional<std::string> bytes = decodeBase64(value);
    if (bytes) {
        *target = std::move(*bytes);
    }
    return bytes.has_value();
}

std::string* DumpHandler::destination() {
    switch (field_) {
        case Field::kFastHash:
            return &books_.back().fastHash;
        case Field::kTitle:
            return &books_.back().title;
        case Field::kPath:
            return &books_.back().path;
        case Field::kUuid:
            return &note().uuid;
        case Field::kText:
            return &tag().text;
        case Field::kJson:
            return &tag().json.emplace();
        default:
            return nullptr;
    }
}

bool DumpHandler::number(std::int64_t value) {
    switch (std::exchange(field_, Field::kNone)) {
        case Field::kVersion:
            return version(value);
        case Field::kTag:
            tag().tag = static_cast<std::int32_t>(value);
            tagKnown_ = tag().tag == value;
            return tagKnown_;
        case Field::kTimestamp:
            tag().timestamp = value;
            timestampKnown_ = true;
            return true;
        default:
            return false;
    }
}

bool DumpHandler::Uint64(std::uint64_t value) {
    return value <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) &&
           number(static_cast<std::int64_t>(value));
}

bool DumpHandler::version(std::int64_t value) {
    versionKnown_ = formatKnown_ && value == kFormatVersion;
    if (formatKnown_ && !versionKnown_) {
        failure_ = kVersionUnknown;
    }
    return versionKnown_;
}

}  // namespace host
