#include "client/sources/w3c/canonical_json.h"

#include <rapidjson/stringbuffer.h>

#include <algorithm>
#include <vector>

namespace client {
namespace {

// Limits the stack for hostile files.
constexpr int kMaxDepth = 32;

using Buffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, host::ThrowingAllocator>;
using Writer = host::JsonWriter<Buffer>;
using Member = JsonValue::Member;

std::vector<const Member*> sortedMembers(const JsonValue& object) {
    std::vector<const Member*> members;
    members.reserve(object.MemberCount());
    for (const Member& member : object.GetObject()) {
        members.push_back(&member);
    }
    std::stable_sort(members.begin(), members.end(), [](const Member* a, const Member* b) {
        return textIn(a->name) < textIn(b->name);
    });
    return members;
}

void write(const JsonValue& value, int depth, Writer& writer) {
    if (!value.IsObject() && !value.IsArray()) {
        value.Accept(writer);
    } else if (depth == kMaxDepth) {
        writer.Null();
    } else if (value.IsObject()) {
        writer.StartObject();
        for (const Member* member : sortedMembers(value)) {
            member->name.Accept(writer);
            write(member->value, depth + 1, writer);
        }
        writer.EndObject();
    } else {
        writer.StartArray();
        for (const JsonValue& element : value.GetArray()) {
            write(element, depth + 1, writer);
        }
        writer.EndArray();
    }
}

}  // namespace

std::string canonicalJson(const JsonValue& value) {
    Buffer buffer;
    Writer writer(buffer);
    write(value, 0, writer);
    return {buffer.GetString(), buffer.GetSize()};
}

}  // namespace client
