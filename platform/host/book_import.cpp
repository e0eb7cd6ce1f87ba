#include <exception>
#include <new>

#include "dump_reader.h"
#include "import_result.h"
#include "reader_database_state.h"
#include "readerlib/import_export_db.h"

namespace Veloran::ReaderLib {

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
