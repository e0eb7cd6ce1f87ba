#include "client/sources/w3c/json_ld.h"

namespace client {
namespace {

const JsonValue kNull;

std::string text(const JsonValue& value) {
    return {value.GetString(), value.GetStringLength()};
}

}  // namespace

const JsonValue& memberOf(const JsonValue& value, const char* name) {
    if (!value.IsObject()) {
        return kNull;
    }
    const auto member = value.FindMember(name);
    return member == value.MemberEnd() ? kNull : member->value;
}

std::vector<const JsonValue*> elementsOf(const JsonValue& value) {
    std::vector<const JsonValue*> elements;
    if (value.IsArray()) {
        elements.reserve(value.Size());
        for (const JsonValue& element : value.GetArray()) {
            elements.push_back(&element);
        }
    } else if (!value.IsNull()) {
        elements.push_back(&value);
    }
    return elements;
}

std::string textOf(const JsonValue& value) {
    if (value.IsString()) {
        return text(value);
    }
    if (const JsonValue& plain = memberOf(value, "@value"); plain.IsString()) {
        return text(plain);
    }
    const bool hasLanguages = value.IsObject() && value.MemberCount() > 0;
    return hasLanguages && value.MemberBegin()->value.IsString()
               ? text(value.MemberBegin()->value)
               : std::string();
}

}  // namespace client
