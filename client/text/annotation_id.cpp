#include "client/text/annotation_id.h"

#include <algorithm>
#include <string_view>

#include "client/text/affixes.h"
#include "client/text/ascii.h"
#include "client/text/percent_encoding.h"

namespace client {
namespace {

constexpr std::string_view kUuid = "urn:uuid:";
constexpr std::string_view kOther = "urn:x-notes:";

bool isUuid(std::string_view text) {
    constexpr std::string_view kForm = "00000000-0000-0000-0000-000000000000";
    return std::equal(
        text.begin(), text.end(), kForm.begin(), kForm.end(), [](char letter, char form) {
            return form == '-' ? letter == '-'
                               : isAsciiDigit(letter) || ('a' <= asciiLowered(letter) &&
                                                          asciiLowered(letter) <= 'f');
        });
}

bool isPlainText(std::string_view text, std::string_view marks) {
    return std::all_of(text.begin(), text.end(), [marks](char letter) {
        return isAsciiLetter(letter) || isAsciiDigit(letter) ||
               marks.find(letter) != std::string_view::npos;
    });
}

// Returns whether the text has a scheme and only characters of URIs.
bool isUri(std::string_view text) {
    const std::size_t colon = text.find(':');
    return colon != std::string_view::npos && colon > 0 && isAsciiLetter(text[0]) &&
           isPlainText(text.substr(0, colon), "+-.") &&
           isPlainText(text, "-._~:/?#[]@!$&'()*+,;=%");
}

}  // namespace

std::string annotationIdOf(const std::string& uuid) {
    if (isUuid(uuid)) {
        return std::string(kUuid) + uuid;
    }
    if (isUri(uuid) && !startsWith(uuid, kUuid) && !startsWith(uuid, kOther)) {
        return uuid;
    }
    return std::string(kOther) + percentEncoded(uuid, isUnreserved);
}

std::string uuidOfAnnotation(const std::string& id) {
    return startsWith(id, kOther) ? percentDecoded(withoutPrefix(id, kOther))
                                  : std::string(withoutPrefix(id, kUuid));
}

}  // namespace client
