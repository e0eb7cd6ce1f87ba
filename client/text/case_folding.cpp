#include "client/text/case_folding.h"

#include <utf8proc.h>

#include <cstdlib>
#include <memory>
#include <new>

#include "text/utf8.h"

namespace client {
namespace {

std::string mapped(const std::string& text, unsigned options) {
    const std::string valid = host::validUtf8(text);
    utf8proc_uint8_t* result = nullptr;
    const utf8proc_ssize_t length = utf8proc_map(
        reinterpret_cast<const utf8proc_uint8_t*>(valid.data()),
        static_cast<utf8proc_ssize_t>(valid.size()), &result,
        static_cast<utf8proc_option_t>(options | UTF8PROC_STABLE | UTF8PROC_COMPOSE |
                                       UTF8PROC_CASEFOLD | UTF8PROC_IGNORE));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(result, &std::free);
    if (length < 0) {  // any other error means invalid UTF-8
        throw std::bad_alloc();
    }
    return {reinterpret_cast<const char*>(result), static_cast<std::size_t>(length)};
}

}  // namespace

std::string caseFolded(const std::string& text) { return mapped(text, 0); }

std::string caseFoldedNfkc(const std::string& text) {
    return mapped(text, UTF8PROC_COMPAT);
}

}  // namespace client
