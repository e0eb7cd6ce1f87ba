#include "client/sources/w3c/twins.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <utility>

#include "client/files/digest.h"
#include "client/sources/w3c/annotation.h"
#include "client/sources/w3c/json_ld.h"

namespace client {
namespace {

using Items = std::vector<const JsonValue*>;

struct Key {
    DigestValue identity;
    std::size_t index;  // of the item

    bool operator<(const Key& other) const {
        const int order = XXH128_cmp(&identity.hash, &other.identity.hash);
        return order < 0 || (order == 0 && index < other.index);
    }
};

Identity identityOf(const JsonValue& item) {
    if (std::string id = textOf(memberOf(item, "id")); !id.empty()) {
        return {std::move(id)};
    }
    const auto annotation = parseAnnotation(item);
    return annotation ? annotation->identity : Identity();
}

DigestValue digestOf(const Identity& identity) {
    Digest digest;
    for (const std::string& text : identity) {
        digest.addText(text);
    }
    return digest.value();
}

std::vector<Key> sortedKeys(const Items& items) {
    std::vector<Key> keys;
    keys.reserve(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (const Identity identity = identityOf(*items[i]); !identity.empty()) {
            keys.push_back({digestOf(identity), i});
        }
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

struct Twin {
    std::int64_t time;
    std::string text;
    std::string comment;
    std::string color;
    const JsonValue* item;

    bool operator<(const Twin& other) const {
        return std::tie(time, text, comment, color) <
               std::tie(other.time, other.text, other.comment, other.color);
    }
};

using KeyIterator = std::vector<Key>::const_iterator;

void sortGroup(KeyIterator first, KeyIterator last, Items& items) {
    std::vector<Twin> twins;
    std::vector<std::size_t> indices;
    for (auto key = first; key != last; ++key) {
        const JsonValue* item = items[key->index];
        if (auto annotation = parseAnnotation(*item)) {
            Note& note = annotation->note;
            twins.push_back({note.time, std::move(note.text), std::move(note.comment),
                             std::move(note.color), item});
            indices.push_back(key->index);
        }
    }
    std::stable_sort(twins.begin(), twins.end());
    for (std::size_t i = 0; i < twins.size(); ++i) {
        items[indices[i]] = twins[i].item;
    }
}

}  // namespace

void sortTwins(Items& items) {
    const std::vector<Key> keys = sortedKeys(items);
    for (auto first = keys.begin(); first != keys.end();) {
        const auto last = std::find_if(first, keys.end(), [first](const Key& key) {
            return !(key.identity == first->identity);
        });
        if (last - first > 1) {
            sortGroup(first, last, items);
        }
        first = last;
    }
}

}  // namespace client
