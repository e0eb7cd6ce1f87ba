#include "export/dump_engine.h"
#include "export/file_mark.h"
#include "export/notes_exporter_impl.h"
#include "readerlib/import_export_db.h"

namespace veloran {

int NotesExporterImpl::import_from_file(const std::string& path) {
    Veloran::ReaderLib::ImportExportDBV2 engine(&database_, kEngineLimit, kEngineMode);
    const int result = engine.books_import(path);
    if (result < 0) {
        return result;
    }
    const std::string hash = hashOfFile(path);
    if (!hash.empty()) {
        markFile(hash);
    }
    return result;
}

}  // namespace veloran
