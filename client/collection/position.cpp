#include "client/collection/position.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>
#include <vector>

#include "client/text/affixes.h"
#include "client/text/numbers.h"
#include "client/text/percent_encoding.h"
#include "client/text/sort_keys.h"

namespace client {
namespace {

constexpr std::string_view kPath = "book:/position";
constexpr std::string_view kPage = "page=";
constexpr std::string_view kLocation = "location=";
constexpr std::string_view kChapter = "chapter=";
constexpr std::string_view kOrder = "order=";
constexpr std::string_view kRank = "r.";

// Cuts the text between two characters, because the host platform does not read positions
// of more than 4 KiB.
std::string encoded(std::string_view text) {
    constexpr std::size_t kMax = 1000;
    std::string result;
    while (!text.empty()) {
        std::size_t length = 1;
        while (length < text.size() && (text[length] & 0xC0) == 0x80) {
            ++length;
        }
        const std::string character = percentEncoded(text.substr(0, length), isUnreserved);
        if (result.size() + character.size() > kMax) {
            break;
        }
        result += character;
        text.remove_prefix(length);
    }
    return result;
}

std::vector<std::string_view> parametersOf(std::string_view position) {
    std::vector<std::string_view> parameters;
    std::string_view query = position.substr(0, position.find('#'));
    query.remove_prefix(std::min(query.find('?'), query.size()));
    while (!query.empty()) {
        query.remove_prefix(1);
        parameters.push_back(query.substr(0, query.find('&')));
        query.remove_prefix(parameters.back().size());
    }
    return parameters;
}

// Returns the value of the first parameter with this name; empty if there is none.
std::string_view valueOf(std::string_view name,
                         const std::vector<std::string_view>& parameters) {
    for (const std::string_view parameter : parameters) {
        if (startsWith(parameter, name)) {
            return withoutPrefix(parameter, name);
        }
    }
    return {};
}

std::optional<double> pageIn(std::string_view text) {
    const auto page = parseNumber<double>(text, std::chars_format::fixed);
    return page && std::isfinite(*page) ? page : std::nullopt;
}

}  // namespace

std::string positionOf(const Place& place) {
    std::string query;
    const auto add = [&query](std::string_view name, const std::string& value) {
        if (!value.empty()) {
            query.append(query.empty() ? "?" : "&").append(name).append(value);
        }
    };
    add(kPage, place.page ? decimal(*place.page) : "");
    add(kLocation, place.location ? std::to_string(*place.location) : "");
    add(kChapter, encoded(place.chapter));
    add(kOrder, encoded(place.order));
    return query.empty() ? query : std::string(kPath) + query;
}

Place placeAt(const std::string& position) {
    const std::vector<std::string_view> parameters = parametersOf(position);
    Place place;
    place.page = pageIn(valueOf(kPage, parameters));
    place.location = parseNumber<std::int64_t>(valueOf(kLocation, parameters));
    place.chapter = percentDecoded(valueOf(kChapter, parameters));
    place.order = percentDecoded(valueOf(kOrder, parameters));
    return place;
}

std::vector<std::string_view> partsOf(std::string_view position) {
    std::vector<std::string_view> parts = {position.substr(0, position.find('?'))};
    for (const std::string_view parameter : parametersOf(position)) {
        if (!isRank(withoutPrefix(parameter, kOrder))) {
            parts.push_back(parameter);
        }
    }
    return parts;
}

std::string rankOrder(std::size_t number) { return std::string(kRank) + sortKey(number); }

bool isRank(std::string_view order) { return startsWith(order, kRank); }

bool hasOrder(const Place& place) { return !place.order.empty() && !isRank(place.order); }

bool isKnown(const Place& place) { return place.page || place.location || hasOrder(place); }

}  // namespace client
