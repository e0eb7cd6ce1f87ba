#include "client/sources/device_file/json_object.h"

#include <utility>

#include "client/error.h"
#include "client/files/whole_file.h"
#include "client/text/control_characters.h"

namespace client {

JsonObject::JsonObject(const Json::Value& value, std::string location)
    : value_(value), location_(std::move(location)) {
    if (!value_.isObject()) {
        fail("expected an object");
    }
}

std::string JsonObject::requiredText(const std::string& name) {
    std::string result = text(name);
    if (result.empty()) {
        fail("\"" + name + "\" is missing or empty");
    }
    return result;
}

std::string JsonObject::text(const std::string& name) {
    const Json::Value* member = find(name, Json::stringValue);
    return member == nullptr ? std::string() : member->asString();
}

std::optional<double> JsonObject::number(const std::string& name) {
    const Json::Value* member = find(name, Json::realValue);
    return member == nullptr ? std::nullopt : std::optional(member->asDouble());
}

std::optional<long long> JsonObject::integer(const std::string& name) {
    const Json::Value* member = find(name, Json::intValue);
    return member == nullptr ? std::nullopt : std::optional<long long>(member->asInt64());
}

const Json::Value& JsonObject::array(const std::string& name) {
    static const Json::Value none(Json::arrayValue);
    const Json::Value* member = find(name, Json::arrayValue);
    return member == nullptr ? none : *member;
}

std::optional<std::string> JsonObject::file(const std::string& name,
                                            const std::filesystem::path& folder) {
    const std::string path = text(name);
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
    for (const std::string& name : value_.getMemberNames()) {
        if (known_.count(name) == 0) {
            fail("\"" + oneLine(name) + "\": unknown member");
        }
    }
}

const Json::Value* JsonObject::find(const std::string& name, Json::ValueType type) {
    known_.insert(name);
    const Json::Value* member = value_.find(name.data(), name.data() + name.size());
    if (member == nullptr) {
        return nullptr;
    }
    const bool matches = type == Json::realValue  ? member->isNumeric()
                         : type == Json::intValue ? member->isInt64()
                                                  : member->type() == type;
    if (!matches) {
        fail("\"" + name + "\" has the wrong type");
    }
    return member;
}

void JsonObject::fail(const std::string& what) const {
    throw UserError(location_ + ": " + what);
}

}  // namespace client
