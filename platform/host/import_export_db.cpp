#include "readerlib/import_export_db.h"

#include <exception>
#include <new>
#include <stdexcept>

#include "database_state.h"
#include "dump/import_result.h"
#include "dump/reader.h"
#include "dump/writer.h"

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

int ImportExportDBV2::books_import(const std::string& path) {
    if (database_->state == nullptr) {
        return host::kDatabaseError;
    }
    try {
        host::ReaderStore& store = database_->state->current();
        return store.merge(host::readDump(path));
    } catch (const host::DumpError& error) {
        return error.result;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception&) {
        return host::kDatabaseError;
    }
}

}  // namespace Veloran::ReaderLib
