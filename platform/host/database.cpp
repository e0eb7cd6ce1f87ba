#include "readerlib/database.h"

#include <filesystem>
#include <stdexcept>

#include "database_state.h"

namespace SqliteCpp {

DB::DB() = default;
DB::~DB() = default;

}  // namespace SqliteCpp

namespace Veloran::ReaderLib {

bool DataBase::open(std::string& path) {
    state = std::make_unique<State>();
    state->path = std::filesystem::absolute(path).string();
    try {
        state->current();
    } catch (const std::runtime_error&) {  // reported by the result
        return false;
    }
    return true;
}

}  // namespace Veloran::ReaderLib
