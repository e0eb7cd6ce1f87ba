#include "readerlib/position_uri.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string_view>
#include <system_error>

namespace Veloran::ReaderLib {
namespace {

constexpr std::string_view kPageParameter = "page=";

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

}  // namespace

bool extractPageFromnURI(const std::string& uri, double& page) {
    std::string_view query = queryOf(uri);
    while (!query.empty()) {
        const std::string_view parameter = query.substr(0, query.find('&'));
        if (parameter.substr(0, kPageParameter.size()) == kPageParameter) {
            return parseNumber(parameter.substr(kPageParameter.size()), page);
        }
        query.remove_prefix(std::min(parameter.size() + 1, query.size()));
    }
    return false;
}

}  // namespace Veloran::ReaderLib
