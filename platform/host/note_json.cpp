#include "note_json.h"

#include <json/reader.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <cstddef>
#include <memory>

#include "json_sax.h"
#include "utf8.h"

namespace host {
namespace {

constexpr int kMaxDepth = 32;
constexpr std::size_t kMaxParsedSize = std::size_t{256} << 10;

// Accepts everything but too deep a nesting.
class DepthGuard : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, DepthGuard> {
public:
    bool StartObject() { return ++depth_ <= kMaxDepth; }
    bool StartArray() { return ++depth_ <= kMaxDepth; }
    bool EndObject(rapidjson::SizeType /*members*/) { return leave(); }
    bool EndArray(rapidjson::SizeType /*elements*/) { return leave(); }

private:
    bool leave() {
        --depth_;
        return true;
    }

    int depth_ = 0;
};

std::unique_ptr<Json::CharReader> strictReader() {
    Json::CharReaderBuilder builder;
    Json::CharReaderBuilder::strictMode(&builder.settings_);
    builder["strictRoot"] = false;     // a tag may hold a bare string or number
    builder["rejectDupKeys"] = false;  // allowed, if unwise; the last one counts
    return std::unique_ptr<Json::CharReader>(builder.newCharReader());
}

}  // namespace

struct NoteJson::Validator {
    JsonReader reader;
};

NoteJson::NoteJson() : validator_(std::make_unique<Validator>()), parser_(strictReader()) {}

NoteJson::~NoteJson() = default;

bool NoteJson::isJson(const std::string& text) {
    rapidjson::MemoryStream bytes(text.data(), text.size());
    DepthGuard guard;
    // The parser takes a zero byte for the end of the text.
    return isUtf8(text) &&
           !validator_->reader.Parse<rapidjson::kParseIterativeFlag>(bytes, guard)
                .IsError() &&
           bytes.Tell() == text.size();
}

std::optional<Json::Value> NoteJson::parse(const std::string& text) {
    if (text.size() > kMaxParsedSize || !isJson(text)) {
        return std::nullopt;
    }
    std::optional<Json::Value> value(std::in_place);
    const char* begin = text.data();
    if (!parser_->parse(begin, begin + text.size(), &*value, nullptr)) {
        value.reset();
    }
    return value;
}

}  // namespace host
