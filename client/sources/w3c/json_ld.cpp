#include "client/sources/w3c/json_ld.h"

namespace client {

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
    const JsonValue& plain = value.IsString() ? value : memberOf(value, "@value");
    const bool isOfLanguage =
        !plain.IsString() && value.IsObject() && value.MemberCount() > 0;
    return std::string(textIn(isOfLanguage ? value.MemberBegin()->value : plain));
}

}  // namespace client
