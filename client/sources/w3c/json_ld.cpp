#include "client/sources/w3c/json_ld.h"

#include <rapidjson/stringbuffer.h>

#include <map>
#include <string_view>

namespace client {
namespace {

using Buffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, host::ThrowingAllocator>;
using Writer = host::JsonWriter<Buffer>;

void write(const JsonValue& value, Writer& writer) {
    if (value.IsObject()) {
        std::multimap<std::string_view, const JsonValue*> members;
        for (const auto& member : value.GetObject()) {
            members.emplace(textIn(member.name), &member.value);
        }
        writer.StartObject();
        for (const auto& [name, element] : members) {
            writer.Key(name.data(), static_cast<rapidjson::SizeType>(name.size()));
            write(*element, writer);
        }
        writer.EndObject();
    } else if (value.IsArray()) {
        writer.StartArray();
        for (const JsonValue& element : value.GetArray()) {
            write(element, writer);
        }
        writer.EndArray();
    } else {
        value.Accept(writer);
    }
}

}  // namespace

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

std::string canonicalJson(const JsonValue& value) {
    Buffer buffer;
    Writer writer(buffer);
    write(value, writer);
    return {buffer.GetString(), buffer.GetSize()};
}

}  // namespace client
