#include "client/sources/koreader/lua.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

#include "client/sources/koreader/lua_literals.h"
#include "client/text/numbers.h"

namespace client {
namespace {

rapidjson::SizeType sizeOf(std::string_view text) {
    return static_cast<rapidjson::SizeType>(text.size());
}

// Sends the values of a file to a document.
class Parser {
public:
    Parser(std::string& text, const std::string& path, JsonDocument& document)
        : literals_(text, path), document_(document) {}

    void parseFile();

private:
    void parseTable();
    rapidjson::SizeType parseEntries(bool haveKeys);
    void parseKey();
    void parseValue();

    LuaLiterals literals_;
    JsonDocument& document_;
    int depth_ = 0;
};

void Parser::parseFile() {
    literals_.skip("return");
    literals_.expect("{", "expected a table.");
    parseTable();
    literals_.skip(";");
    literals_.expectEnd();
}

void Parser::parseTable() {
    if (++depth_ > kMaxJsonDepth) {
        literals_.fail("nested too deep.");
    }
    const bool isKeyNext = !literals_.isTextNext() && literals_.isNext("[");
    if (isKeyNext || literals_.isNext("}")) {
        document_.StartObject();
        document_.EndObject(parseEntries(true));
    } else {
        document_.StartArray();
        document_.EndArray(parseEntries(false));
    }
    --depth_;
}

rapidjson::SizeType Parser::parseEntries(bool haveKeys) {
    rapidjson::SizeType count = 0;
    for (bool isSeparated = true; !literals_.skip("}"); ++count) {
        if (!isSeparated) {
            literals_.fail("expected a comma or the end of the table.");
        }
        if (haveKeys) {
            parseKey();
        }
        parseValue();
        isSeparated = literals_.skip(",") || literals_.skip(";");
    }
    return count;
}

void Parser::parseKey() {
    literals_.expect("[", "expected a key in brackets.");
    if (literals_.isTextNext()) {
        const std::string_view key = literals_.text();
        document_.Key(key.data(), sizeOf(key), false);
    } else {
        std::array<char, 32> buffer{};
        char* const end = buffer.data() + buffer.size();
        char* const next = std::to_chars(buffer.data(), end, literals_.number()).ptr;
        const std::string_view key(buffer.data(),
                                   static_cast<std::size_t>(next - buffer.data()));
        document_.Key(key.data(), sizeOf(key), true);
    }
    literals_.expect("]", "expected the end of the key.");
    literals_.expect("=", "expected \"=\".");
}

void Parser::parseValue() {
    if (literals_.isTextNext()) {
        const std::string_view text = literals_.text();
        document_.String(text.data(), sizeOf(text), false);
    } else if (literals_.skip("{")) {
        parseTable();
    } else if (literals_.skip("true")) {
        document_.Bool(true);
    } else if (literals_.skip("false")) {
        document_.Bool(false);
    } else if (literals_.skip("nil")) {
        document_.Null();
    } else {
        document_.Double(literals_.number());
    }
}

}  // namespace

JsonDocument parseLua(std::string& text, const std::string& path) {
    JsonDocument document;
    const auto parse = [&](JsonDocument& values) {
        Parser(text, path, values).parseFile();
        return true;
    };
    document.Populate(parse);
    return document;
}

std::vector<std::pair<double, const JsonValue*>> numberedIn(const JsonValue& table) {
    std::vector<std::pair<double, const JsonValue*>> values;
    if (table.IsArray()) {
        values.reserve(table.Size());
        for (const JsonValue& value : table.GetArray()) {
            values.emplace_back(static_cast<double>(values.size() + 1), &value);
        }
    } else if (table.IsObject()) {
        values.reserve(table.MemberCount());
        for (auto member = table.MemberEnd(); member != table.MemberBegin();) {
            --member;
            const auto number = parseNumber<double>(textIn(member->name));
            if (number && std::isfinite(*number)) {
                values.emplace_back(*number, &member->value);
            }
        }
        std::stable_sort(values.begin(), values.end(),
                         [](const auto& a, const auto& b) { return a.first < b.first; });
        const auto end =
            std::unique(values.begin(), values.end(),
                        [](const auto& a, const auto& b) { return a.first == b.first; });
        values.erase(end, values.end());
    }
    return values;
}

}  // namespace client
