// What an open database handle holds.
#pragma once

#include <optional>
#include <string>

#include "readerlib/database.h"
#include "store/reader_store.h"

struct SqliteCpp::DB::State {
    // The database that is under the path now. Tries again to open one that could not be
    // opened: it may have been busy for a moment only, and the handle lives for long.
    host::ReaderStore& current() {
        if (store) {
            store->reopenIfReplaced();
            return *store;
        }
        return store.emplace(path);
    }

    std::string path;  // does not depend on the working directory
    std::optional<host::ReaderStore> store = std::nullopt;
};
