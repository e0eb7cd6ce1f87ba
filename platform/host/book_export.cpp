#include "readerlib/import_export_db.h"

#include <stdexcept>

#include "dump_writer.h"
#include "reader_database_state.h"

namespace Veloran::ReaderLib {

ImportExportDBV2::ImportExportDBV2(DataBase* database, unsigned long long limit, int mode)
    : database_(database), limit_(limit), mode_(mode) {}

void ImportExportDBV2::set_export_bookmark_ids(const std::set<unsigned long long>& ids) {
    exportBookmarkIds_ = ids;
}

bool ImportExportDBV2::books_export(std::string& out,
                                    const std::set<unsigned long long>& books) {
    if (database_->state == nullptr) {
        return false;
    }
    try {
        return host::writeDump(database_->state->current(), books, exportBookmarkIds_, out);
    } catch (const std::runtime_error&) {
        return false;
    }
}

}  // namespace Veloran::ReaderLib
