#include "client/sources/device_file/json_object.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/text/control_characters.h"

namespace client {
namespace {

// Takes 100.0 for an integer, as some programs write it.
std::optional<std::int64_t> integerIn(const JsonValue& value) {
    constexpr double kEnd = 9223372036854775808.0;  // 2^63
    if (value.IsInt64()) {
        return value.GetInt64();
    }
    const double number = value.IsDouble() ? value.GetDouble() : kEnd;
    const bool fits = number >= -kEnd && number < kEnd && std::trunc(number) == number;
    return fits ? std::optional(static_cast<std::int64_t>(number)) : std::nullopt;
}

}  // namespace

JsonObject::JsonObject(const JsonValue& value, std::string location)
    : value_(value), location_(std::move(location)) {
    if (!value_.IsObject()) {
        fail("expected an object");
    }
}

std::string_view JsonObject::requiredText(const char* name) {
    const std::string_view result = text(name);
    if (result.empty()) {
        fail("\"" + std::string(name) + "\" is missing or empty");
    }
    return result;
}

std::string_view JsonObject::text(const char* name) {
    const JsonValue* member = find(name);
    if (member != nullptr && !member->IsString()) {
        failType(name);
    }
    return member == nullptr ? std::string_view() : textIn(*member);
}

std::optional<double> JsonObject::number(const char* name) {
    const JsonValue* member = find(name);
    if (member != nullptr && !member->IsNumber()) {
        failType(name);
    }
    return member == nullptr ? std::nullopt : std::optional(member->GetDouble());
}

std::optional<std::int64_t> JsonObject::integer(const char* name) {
    const JsonValue* member = find(name);
    const auto integer = member == nullptr ? std::nullopt : integerIn(*member);
    if (member != nullptr && !integer) {
        failType(name);
    }
    return integer;
}

const JsonValue& JsonObject::array(const char* name) {
    static const JsonValue none(rapidjson::kArrayType);
    const JsonValue* member = find(name);
    if (member != nullptr && !member->IsArray()) {
        failType(name);
    }
    return member == nullptr ? none : *member;
}

std::optional<std::string> JsonObject::file(const char* name,
                                            const std::filesystem::path& folder) {
    const std::string_view path = text(name);
    if (path.empty()) {
        return std::nullopt;
    }
    try {
        return readFile(folder / path);
    } catch (const UserError& error) {
        fail(error.what());
    }
}

void JsonObject::requireNoOtherMembers() const {
    std::vector<std::string_view> left = known_;
    for (const auto& member : value_.GetObject()) {
        const std::string_view name = textIn(member.name);
        const auto known = std::find(left.begin(), left.end(), name);
        if (known == left.end()) {
            const bool isSecond =
                std::find(known_.begin(), known_.end(), name) != known_.end();
            fail("\"" + oneLine(std::string(name)) +
                 (isSecond ? "\": is there twice" : "\": unknown member"));
        }
        left.erase(known);
    }
}

const JsonValue* JsonObject::find(const char* name) {
    known_.emplace_back(name);
    const auto member = value_.FindMember(name);
    return member == value_.MemberEnd() ? nullptr : &member->value;
}

void JsonObject::failType(const char* name) const {
    fail("\"" + std::string(name) + "\" has the wrong type");
}

void JsonObject::fail(const std::string& what) const {
    throw UserError(location_ + ": " + what);
}

}  // namespace client
