#include "dump/note_json.h"

#include <rapidjson/reader.h>
#include <rapidjson/stream.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include "dump/json_sax.h"
#include "text/utf8.h"

namespace host {
namespace {

using rapidjson::SizeType;

constexpr std::size_t kMaxDepth = 32;
constexpr std::size_t kMaxParsedSize = std::size_t{4} << 10;

// Accepts JSON that is not nested too deep.
class DepthGuard : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, DepthGuard> {
public:
    bool StartObject() { return ++depth_ <= kMaxDepth; }
    bool StartArray() { return ++depth_ <= kMaxDepth; }
    bool EndObject(SizeType /*members*/) { return leave(); }
    bool EndArray(SizeType /*elements*/) { return leave(); }

private:
    bool leave() {
        --depth_;
        return true;
    }

    std::size_t depth_ = 0;
};

// Builds a Json::Value. jsoncpp's own reader is not used because it reads numbers in the
// global locale.
class ValueBuilder {
public:
    bool Null() { return add(Json::Value()); }
    bool Bool(bool value) { return add(value); }
    bool Int(int value) { return add(value); }
    bool Uint(unsigned value) { return add(value); }
    bool Int64(std::int64_t value) { return add(Json::Int64{value}); }
    bool Uint64(std::uint64_t value) { return add(Json::UInt64{value}); }
    bool Double(double value) { return add(value); }
    static bool RawNumber(const char* /*digits*/, SizeType /*length*/, bool /*copy*/) {
        return false;
    }
    bool String(const char* text, SizeType length, bool /*copy*/) {
        return add(Json::Value(text, text + length));
    }
    bool Key(const char* name, SizeType length, bool /*copy*/) {
        key_.assign(name, length);
        return true;
    }
    bool StartObject() { return open(Json::objectValue); }
    bool StartArray() { return open(Json::arrayValue); }
    bool EndObject(SizeType /*members*/) { return close(); }
    bool EndArray(SizeType /*elements*/) { return close(); }

    Json::Value take() { return std::move(root_); }

private:
    Json::Value& insert(Json::Value value) {
        Json::Value& target = open_.empty()             ? root_
                              : open_.back()->isArray() ? open_.back()->append({})
                                                        : (*open_.back())[key_];
        return target = std::move(value);
    }
    bool add(Json::Value value) {
        insert(std::move(value));
        return true;
    }
    bool open(Json::ValueType type) {
        open_.push_back(&insert(type));
        return open_.size() <= kMaxDepth;
    }
    bool close() {
        open_.pop_back();
        return true;
    }

    Json::Value root_;
    std::vector<Json::Value*> open_;
    std::string key_;
};

}  // namespace

struct NoteJson::Reader {
    JsonReader json;
};

NoteJson::NoteJson() : reader_(std::make_unique<Reader>()) {}

NoteJson::~NoteJson() = default;

template <class Handler>
bool NoteJson::read(const std::string& text, Handler& handler) {
    rapidjson::StringStream bytes(text.c_str());
    // A zero byte ends the text for the parser.
    return isUtf8(text) && !reader_->json.Parse(bytes, handler).IsError() &&
           bytes.Tell() == text.size();
}

bool NoteJson::isJson(const std::string& text) {
    DepthGuard guard;
    return read(text, guard);
}

std::optional<Json::Value> NoteJson::parse(const std::string& text) {
    ValueBuilder builder;
    if (text.size() > kMaxParsedSize || !read(text, builder)) {
        return std::nullopt;
    }
    return builder.take();
}

}  // namespace host
