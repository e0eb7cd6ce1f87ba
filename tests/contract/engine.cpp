#include "engine.h"

#include "contract_device.h"
#include "files.h"
#include "utilities/serialization_utils.h"

Engine::Engine() {
    std::string path = readerDatabasePath();
    database_.open(path);
}

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

int imported(const std::string& document) {
    writeFile("export.html", document);
    return Engine()->books_import("export.html");
}
