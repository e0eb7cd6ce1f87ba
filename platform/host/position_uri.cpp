#include "readerlib/position_uri.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>

namespace Veloran::ReaderLib {
namespace {

std::string_view queryOf(std::string_view uri) {
    uri = uri.substr(0, uri.find('#'));
    const std::size_t mark = uri.find('?');
    return mark == std::string_view::npos ? std::string_view() : uri.substr(mark + 1);
}

bool parseNumber(std::string_view text, double& number) {
    const char* end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    return parsed.ec == std::errc() && parsed.ptr == end && std::isfinite(number);
}

// Returns whether the first parameter with this name is a number.
bool findNumber(std::string_view query, std::string_view name, double& number) {
    while (!query.empty()) {
        const std::string_view parameter = query.substr(0, query.find('&'));
        if (parameter.substr(0, name.size()) == name) {
            return parseNumber(parameter.substr(name.size()), number);
        }
        query.remove_prefix(std::min(parameter.size() + 1, query.size()));
    }
    return false;
}

}  // namespace

// Positions in books without pages have a location.
bool extractPageFromnURI(const std::string& uri, double& page) {
    const std::string_view query = queryOf(uri);
    return findNumber(query, "page=", page) || findNumber(query, "location=", page);
}

}  // namespace Veloran::ReaderLib
