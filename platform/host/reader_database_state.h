// What an open database handle holds.
#pragma once

#include "reader_store.h"
#include "readerlib/database.h"

struct SqliteCpp::DB::State {
    host::ReaderStore store;
};
