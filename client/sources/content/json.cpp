#include "client/sources/content/json.h"

#include <rapidjson/error/en.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/text/affixes.h"

namespace client {
namespace {

// Builds a document, but none that is nested too deep.
class Builder : public JsonDocument {
public:
    // Returns false if the text is not JSON, or nested too deep.
    bool build(rapidjson::InsituStringStream& text);

    // Returns the fault, after a text that is not JSON.
    std::string fault() const;
    std::size_t faultOffset() const { return reader_.GetErrorOffset(); }

    // Called by the parser.
    bool StartObject() { return enter() && JsonDocument::StartObject(); }
    bool StartArray() { return enter() && JsonDocument::StartArray(); }
    bool EndObject(rapidjson::SizeType members) {
        --depth_;
        return JsonDocument::EndObject(members);
    }
    bool EndArray(rapidjson::SizeType elements) {
        --depth_;
        return JsonDocument::EndArray(elements);
    }

private:
    bool enter() { return ++depth_ <= kMaxJsonDepth; }

    host::JsonReader reader_;
    int depth_ = 0;
};

bool Builder::build(rapidjson::InsituStringStream& text) {
    constexpr unsigned kFlags = rapidjson::kParseInsituFlag |
                                rapidjson::kParseIterativeFlag |
                                rapidjson::kParseFullPrecisionFlag;
    const auto parse = [&](JsonDocument& /*self*/) {
        return !reader_.Parse<kFlags>(text, *this).IsError();
    };
    Populate(parse);
    return !reader_.HasParseError();
}

std::string Builder::fault() const {
    const auto code = reader_.GetParseErrorCode();
    return code == rapidjson::kParseErrorTermination ? "nested too deep."
                                                     : rapidjson::GetParseError_En(code);
}

}  // namespace

JsonDocument parseJson(std::string& text, const std::string& path) {
    const std::size_t start = text.size() - withoutByteOrderMark(text).size();
    rapidjson::InsituStringStream stream(&text[start]);
    Builder builder;
    const bool isJson = builder.build(stream);
    const std::size_t end = start + (isJson ? stream.Tell() : builder.faultOffset());
    if (!isJson || end != text.size()) {  // the parser takes a zero byte for the end
        throw UserError("Cannot read " + path + " as JSON: " + placeIn(path, end) + ": " +
                        (isJson ? "a zero byte." : builder.fault()));
    }
    JsonDocument json;
    json.Swap(builder);
    return json;
}

// Reads the file again, because parsing changes the text.
std::string placeIn(const std::string& path, std::size_t offset) {
    const std::string before = readStart(path, offset);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t column = before.size() - (before.rfind('\n') + 1) + 1;
    return "line " + std::to_string(line) + ", column " + std::to_string(column);
}

const JsonValue& memberOf(const JsonValue& value, const char* name) {
    static const JsonValue kNull;
    if (value.IsObject()) {
        for (auto member = value.MemberEnd(); member != value.MemberBegin();) {
            if (textIn((--member)->name) == name) {
                return member->value;
            }
        }
    }
    return kNull;
}

std::string_view textIn(const JsonValue& value) {
    return value.IsString() ? std::string_view(value.GetString(), value.GetStringLength())
                            : std::string_view();
}

std::optional<double> numberIn(const JsonValue& value) {
    const bool isFinite = value.IsNumber() && std::isfinite(value.GetDouble());
    return isFinite ? std::optional(value.GetDouble()) : std::nullopt;
}

}  // namespace client
