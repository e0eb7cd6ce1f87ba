#include "client/sources/exported_page/encoding.h"

#include <iconv.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "client/text/affixes.h"
#include "text/utf8.h"

namespace client {
namespace {

class Converter {
public:
    explicit Converter(const std::string& encoding)
        : handle_(iconv_open("UTF-8", encoding.c_str())) {}
    ~Converter() {
        if (isOpen()) {
            iconv_close(handle_);
        }
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool isOpen() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }

    // Returns nullopt if the text is cut, or invalid in the encoding.
    std::optional<std::string> converted(std::string& text);

private:
    iconv_t handle_;
};

std::optional<std::string> Converter::converted(std::string& text) {
    std::vector<char> block(65536);
    std::string result;
    char* from = text.data();
    std::size_t left = text.size();
    while (left > 0) {
        char* to = block.data();
        std::size_t room = block.size();
        iconv(handle_, &from, &left, &to, &room);
        if (room == block.size()) {
            return std::nullopt;
        }
        result.append(block.data(), block.size() - room);
    }
    return result;
}

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
    constexpr std::string_view kByteOrderMark = "\ufeff";
    std::string encoding;
    if (startsWith(html, "\xff\xfe") || startsWith(html, "\xfe\xff")) {
        encoding = "UTF-16";
    } else if (!host::isUtf8(html)) {
        encoding = encodingNamedIn(html);
    }
    if (Converter converter(encoding); !encoding.empty() && converter.isOpen()) {
        html = converter.converted(html).value_or(html);
    }
    return std::string(withoutPrefix(html, kByteOrderMark));
}

}  // namespace client
