#include <string.h>

#include "export/dump_engine.h"
#include "export/notes_exporter_impl.h"
#include "readerlib/import_export_db.h"
#include "utilities/serialization_utils.h"

namespace veloran {

namespace {

constexpr std::size_t kLineLength = 72;

// Writes a line break between lines, and none after the last.
void writeLines(Writer& writer, const std::string& text) {
    for (std::size_t offset = 0; offset < text.size(); offset += kLineLength) {
        if (offset != 0) {
            writer.writeRaw("\n");
        }
        const char* line = text.c_str() + offset;  // ends at a zero byte
        writer.writeRaw(line, strnlen(line, kLineLength));
    }
}

}  // namespace

int NotesExporterImpl::writeBinaryDump(Writer& writer, long long itemId,
                                       const std::set<unsigned long long>& ids) {
    Veloran::ReaderLib::ImportExportDBV2 engine(&database_, kEngineLimit, kEngineMode);
    engine.set_export_bookmark_ids(ids);
    std::string payload;
    const bool exported =
        engine.books_export(payload, {static_cast<unsigned long long>(itemId)});
    if (!exported || payload.empty()) {
        return -1;
    }
    writer.openElt("script").writeAttr("type", "application/x-veloran-dbdump");
    writer.writeAttr("book_hash", readerDb_.getBookFastHashById(itemId).c_str());
    writeLines(writer, utilities::SerializationUtils::ToBase64(payload));
    writer.closeElt();
    return 0;
}

}  // namespace veloran
