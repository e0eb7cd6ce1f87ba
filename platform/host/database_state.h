// The state of an open database handle.
#pragma once

#include <optional>
#include <string>

#include "readerlib/database.h"
#include "store/reader_store.h"

struct SqliteCpp::DB::State {
    // Returns the database that is at the path now. Retries an open that failed, because
    // the database may only have been busy.
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
