#include "client/sources/exported_page/encoding.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "client/text/affixes.h"
#include "client/text/encoding.h"
#include "text/utf8.h"

namespace client {
namespace {

std::string encodingNamedIn(std::string_view html) {
    constexpr std::size_t kStart = 4096;
    const std::string_view start = html.substr(0, kStart);
    for (const std::string_view mark : {"charset=", "encoding="}) {
        if (const std::size_t at = start.find(mark); at != std::string_view::npos) {
            const std::string_view rest = start.substr(at + mark.size());
            const std::size_t from = rest.find_first_not_of("\"'");
            return std::string(rest.substr(std::min(from, rest.size()))
                                   .substr(0, rest.find_first_of("\"' />;", 1) - from));
        }
    }
    return {};
}

}  // namespace

std::string htmlAsUtf8(std::string html) {
    html = utf16AsUtf8(std::move(html));
    if (!host::isUtf8(html)) {
        const std::string encoding = encodingNamedIn(html);
        html = asUtf8(std::move(html), encoding);
    }
    html.erase(0, html.size() - withoutByteOrderMark(html).size());
    return html;
}

}  // namespace client
