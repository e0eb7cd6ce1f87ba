#include "document.h"

#include "utilities/serialization_utils.h"

std::string documentOf(const std::string& payload, const std::string& head) {
    const std::string base64 = veloran::utilities::SerializationUtils::ToBase64(payload);
    std::string text;
    for (std::size_t at = 0; at < base64.size(); at += 72) {
        text.append(at == 0 ? "" : "\n").append(base64, at, 72);
    }
    return documentAround(text, head);
}

std::string documentAround(const std::string& dump, const std::string& head) {
    return "<!DOCTYPE html><html>\n  <head>" + head +
           "\n    <script type=\"application/x-veloran-dbdump\" book_hash=\"ab\">" + dump +
           "</script>\n  </head>\n  <body></body>\n</html>";
}
