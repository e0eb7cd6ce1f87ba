#include "client/sources/koreader/lua.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <system_error>

#include "client/error.h"
#include "client/text/affixes.h"
#include "client/text/numbers.h"

namespace client {
namespace {

rapidjson::SizeType sizeOf(std::string_view text) {
    return static_cast<rapidjson::SizeType>(text.size());
}

// Sends the values of a file to a document.
class Parser {
public:
    Parser(const std::string& text, const std::string& path, JsonDocument& document)
        : text_(text),
          path_(path),
          document_(document),
          at_(text.size() - withoutByteOrderMark(text).size()) {}

    void parseFile();

private:
    [[noreturn]] void fail(const char* what) const;

    std::string_view rest() const { return std::string_view(text_).substr(at_); }

    // Each of these skips the space before the token.
    bool isNext(std::string_view token);
    bool skip(std::string_view token);
    void expect(std::string_view token, const char* what);

    void parseTable();
    std::string key();
    void parseValue();
    double number();
    std::string quoted();
    char escaped();

    const std::string& text_;
    const std::string& path_;
    JsonDocument& document_;
    std::size_t at_;
    int depth_ = 0;
};

void Parser::fail(const char* what) const {
    throw UserError("Cannot read " + path_ + " as a table of Lua: " + placeIn(path_, at_) +
                    ": " + what);
}

bool Parser::isNext(std::string_view token) {
    at_ = text_.size() - withoutLuaSpace(rest()).size();
    return startsWith(rest(), token);
}

bool Parser::skip(std::string_view token) {
    const bool isThere = isNext(token);
    at_ += isThere ? token.size() : 0;
    return isThere;
}

void Parser::expect(std::string_view token, const char* what) {
    if (!skip(token)) {
        fail(what);
    }
}

void Parser::parseFile() {
    skip("return");
    expect("{", "expected a table.");
    parseTable();
    if (!isNext("") || !rest().empty()) {
        fail("expected the end of the file.");
    }
}

void Parser::parseTable() {
    if (++depth_ > kMaxJsonDepth) {
        fail("nested too deep.");
    }
    document_.StartObject();
    rapidjson::SizeType count = 0;
    int withoutKey = 0;
    for (bool isSeparated = true; !skip("}"); ++count) {
        if (!isSeparated) {
            fail("expected a comma or the end of the table.");
        }
        const std::string name = isNext("[") ? key() : std::to_string(++withoutKey);
        document_.Key(name.data(), sizeOf(name), true);
        parseValue();
        isSeparated = skip(",");
    }
    document_.EndObject(count);
    --depth_;
}

// Returns a text, or a number as it stands in the file.
std::string Parser::key() {
    expect("[", "expected a key in brackets.");
    std::string key;
    if (isNext("\"")) {
        key = quoted();
    } else {
        const std::size_t start = at_;
        number();
        key = text_.substr(start, at_ - start);
    }
    expect("]", "expected the end of the key.");
    expect("=", "expected \"=\".");
    return key;
}

void Parser::parseValue() {
    if (isNext("\"")) {
        const std::string text = quoted();
        document_.String(text.data(), sizeOf(text), true);
    } else if (skip("{")) {
        parseTable();
    } else if (skip("true")) {
        document_.Bool(true);
    } else if (skip("false")) {
        document_.Bool(false);
    } else {
        document_.Double(number());
    }
}

double Parser::number() {
    double value = HUGE_VAL;  // stays if the number is out of range
    const char* const begin = text_.data() + at_;
    const char* const end = std::from_chars(begin, text_.data() + text_.size(), value).ptr;
    if (end == begin) {
        fail("expected a text, a number, true, false or a table.");
    }
    at_ += static_cast<std::size_t>(end - begin);
    return value;
}

std::string Parser::quoted() {
    const std::size_t start = at_++;
    std::string text;
    for (;;) {
        const std::size_t stop = text_.find_first_of("\"\\\n", at_);
        if (stop == std::string::npos || text_[stop] == '\n') {
            at_ = start;
            fail("the text has no end.");
        }
        text.append(text_, at_, stop - at_);
        at_ = stop + 1;
        if (text_[stop] == '"') {
            return text;
        }
        text += escaped();
    }
}

// Reads what follows a backslash: up to three digits of a byte, or a character.
char Parser::escaped() {
    constexpr std::string_view kLetters = "nrt\\\"\n";
    constexpr std::string_view kMeanings = "\n\r\t\\\"\n";
    at_ += startsWith(rest(), "\r\n") ? 1 : 0;
    const std::string_view next = rest().substr(0, 3);
    unsigned char code = 0;
    const auto digits = std::from_chars(next.data(), next.data() + next.size(), code);
    if (digits.ec == std::errc()) {
        at_ += static_cast<std::size_t>(digits.ptr - next.data());
        return static_cast<char>(code);
    }
    const std::size_t meaning = kLetters.find(text_[at_]);
    if (meaning == std::string_view::npos) {
        fail("unknown escape.");
    }
    ++at_;
    return kMeanings[meaning];
}

}  // namespace

JsonDocument parseLua(const std::string& text, const std::string& path) {
    JsonDocument document;
    const auto parse = [&](JsonDocument& values) {
        Parser(text, path, values).parseFile();
        return true;
    };
    document.Populate(parse);
    return document;
}

std::map<double, const JsonValue*> numberedIn(const JsonValue& table) {
    std::map<double, const JsonValue*> values;
    if (table.IsObject()) {
        for (const auto& member : table.GetObject()) {
            const auto number = parseNumber<double>(textIn(member.name));
            if (number && std::isfinite(*number)) {
                values[*number] = &member.value;
            }
        }
    }
    return values;
}

std::string_view withoutLuaSpace(std::string_view text) {
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
        if (!startsWith(text, "--")) {
            return text;
        }
        text.remove_prefix(std::min(text.find('\n'), text.size()));
    }
}

}  // namespace client
