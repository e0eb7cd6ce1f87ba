#include "client/text/case_folding.h"

#include <utf8proc.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <string_view>

#include "client/text/ascii.h"
#include "text/utf8.h"

namespace client {
namespace {

std::string mapped(const std::string& text, unsigned options) {
    const std::string valid = host::validUtf8(text);
    utf8proc_uint8_t* result = nullptr;
    const utf8proc_ssize_t length =
        utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(valid.data()),
                     static_cast<utf8proc_ssize_t>(valid.size()), &result,
                     static_cast<utf8proc_option_t>(options | UTF8PROC_STABLE |
                                                    UTF8PROC_COMPOSE | UTF8PROC_IGNORE));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(result, &std::free);
    if (length < 0) {  // any other error means invalid UTF-8
        throw std::bad_alloc();
    }
    return {reinterpret_cast<const char*>(result), static_cast<std::size_t>(length)};
}

// Takes a tenth of the time for ASCII.
std::string folded(const std::string& text, unsigned options) {
    return isAscii(text) ? asciiLowered(text) : mapped(text, options | UTF8PROC_CASEFOLD);
}

}  // namespace

std::string caseFolded(const std::string& text) { return folded(text, 0); }

std::string caseFoldedNfkc(const std::string& text) {
    return folded(text, UTF8PROC_COMPAT);
}

std::string comparableName(const std::string& name) {
    std::string result;
    bool isSpaced = false;
    const std::string composed = mapped(name, UTF8PROC_STRIPCC);  // line ends become spaces
    for (std::string_view rest = composed; !rest.empty();) {
        utf8proc_int32_t code = 0;
        const auto length = static_cast<std::size_t>(
            utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(rest.data()),
                             static_cast<utf8proc_ssize_t>(rest.size()), &code));
        if (utf8proc_category(code) == UTF8PROC_CATEGORY_ZS) {
            isSpaced = !result.empty();
        } else {
            result.append(isSpaced ? " " : "").append(rest.substr(0, length));
            isSpaced = false;
        }
        rest.remove_prefix(length);
    }
    return result;
}

}  // namespace client
