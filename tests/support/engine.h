// Imports through the seam, and documents for them.
#pragma once

#include <string>

#include "contract_device.h"
#include "readerlib/database.h"
#include "readerlib/import_export_db.h"
#include "scratch_files.h"
#include "utilities/serialization_utils.h"

// An engine on the reader database of the device.
class Engine {
public:
    Engine() {
        std::string path = readerDatabasePath();
        database_.open(path);
    }
    Veloran::ReaderLib::ImportExportDBV2* operator->() { return &engine_; }

private:
    Veloran::ReaderLib::DataBase database_;
    Veloran::ReaderLib::ImportExportDBV2 engine_{&database_, 10, 3};
};

// Returns a document with this text in the dump's element, after `head`.
inline std::string documentAround(const std::string& dump, const std::string& head = "") {
    return "<!DOCTYPE html><html>\n  <head>" + head +
           "\n    <script type=\"application/x-veloran-dbdump\" book_hash=\"ab\">" + dump +
           "</script>\n  </head>\n  <body></body>\n</html>";
}

// Returns a document with this payload.
inline std::string documentOf(const std::string& payload, const std::string& head = "") {
    const std::string base64 = veloran::utilities::SerializationUtils::ToBase64(payload);
    std::string text;
    for (std::size_t at = 0; at < base64.size(); at += 72) {
        text.append(at == 0 ? "" : "\n").append(base64, at, 72);
    }
    return documentAround(text, head);
}

// Imports the document and returns the result.
inline int imported(const std::string& document) {
    writeFile("export.html", document);
    return Engine()->books_import("export.html");
}
