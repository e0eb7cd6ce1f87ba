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
#include "client/text/annotation_id.h"

namespace client {
namespace {

using Items = std::vector<const JsonValue*>;

// The digest of an identity, and the item's index.
using Key = std::tuple<std::uint64_t, std::uint64_t, std::size_t>;
using KeyIterator = std::vector<Key>::const_iterator;

// Time, text, comment and colour; last the item, so that the order of equal ones stays.
using Twin =
    std::tuple<std::int64_t, std::string, std::string, std::string, const JsonValue*>;

Identity identityOf(const JsonValue& item) {
    if (std::string id = textOf(memberOf(item, "id")); !id.empty()) {
        return {uuidOfAnnotation(id)};
    }
    const auto annotation = parseAnnotation(item);
    return annotation ? annotation->identity : Identity();
}

std::vector<Key> sortedKeys(const Items& items) {
    std::vector<Key> keys;
    keys.reserve(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        Digest digest;
        for (const std::string& text : identityOf(*items[i])) {
            digest.addText(text);
        }
        const XXH128_hash_t hash = digest.value().hash;
        keys.emplace_back(hash.high64, hash.low64, i);
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

void sortGroup(KeyIterator first, KeyIterator last, Items& items) {
    std::vector<Twin> twins;
    std::vector<std::size_t> indices;
    for (auto key = first; key != last; ++key) {
        const std::size_t index = std::get<2>(*key);
        if (auto annotation = parseAnnotation(*items[index])) {
            Note& note = annotation->note;
            twins.emplace_back(note.time, std::move(note.text), std::move(note.comment),
                               std::move(note.color), items[index]);
            indices.push_back(index);
        }
    }
    std::sort(twins.begin(), twins.end());
    for (std::size_t i = 0; i < twins.size(); ++i) {
        items[indices[i]] = std::get<4>(twins[i]);
    }
}

bool areTwins(const Key& one, const Key& other) {
    return std::get<0>(one) == std::get<0>(other) && std::get<1>(one) == std::get<1>(other);
}

}  // namespace

void sortTwins(Items& items) {
    const std::vector<Key> keys = sortedKeys(items);
    for (auto first = keys.begin(); first != keys.end();) {
        const auto last = std::find_if(
            first, keys.end(), [first](const Key& key) { return !areTwins(*first, key); });
        if (last - first > 1) {
            sortGroup(first, last, items);
        }
        first = last;
    }
}

}  // namespace client
