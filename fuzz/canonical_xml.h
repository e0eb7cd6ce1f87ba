// Documents in canonical form.
#pragma once

#include <libxml/c14n.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>

#include "fuzz_target.h"

namespace fuzz {

// Returns the length of the legal character at `at`; 0 if there is none.
inline std::size_t lengthOfCharacter(const std::string& bytes, std::size_t at) {
    int length = static_cast<int>(std::min<std::size_t>(bytes.size() - at, 4));
    const int code = xmlGetUTF8Char(reinterpret_cast<const xmlChar*>(&bytes[at]), &length);
    xmlChar encoded[8] = {};
    const bool isLegal = code > 0 && IS_CHAR(static_cast<unsigned>(code)) &&
                         xmlCopyCharMultiByte(encoded, code) == length;
    const auto size = static_cast<std::size_t>(length);
    // The decoder may accept invalid bytes as this character.
    return isLegal && std::memcmp(&bytes[at], encoded, size) == 0 ? size : 0;
}

// Returns the document, which must be well-formed, as Canonical XML with comments.
inline std::string canonical(const std::string& document) {
    const std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> tree(
        xmlReadMemory(document.data(), static_cast<int>(document.size()), nullptr, "UTF-8",
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
        xmlFreeDoc);
    check(tree != nullptr, "the document is well-formed: " + document);
    xmlChar* text = nullptr;
    const int size =
        xmlC14NDocDumpMemory(tree.get(), nullptr, XML_C14N_1_0, nullptr, 1, &text);
    check(size > 0, "the document has a canonical form: " + document);
    const std::string result(text, text + size);
    xmlFree(text);
    return result;
}

// Returns the bytes, with "?" for each that belongs to no legal character.
inline std::string legal(const std::string& bytes) {
    std::string result;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = lengthOfCharacter(bytes, at);
        length == 0 ? result.append("?") : result.append(bytes, at, length);
        at += std::max<std::size_t>(length, 1);
    }
    return result;
}

}  // namespace fuzz
