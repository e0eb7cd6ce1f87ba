// A collection that files are loaded into.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "client/collection/loading.h"
#include "client/error.h"
#include "client/sources/source.h"
#include "scratch_files.h"

class CollectionInMemory {
public:
    int load(std::string_view content) {
        writeFile("source", std::string(content));
        client::SourceContent source;
        try {
            source = client::readSource("source");
        } catch (const client::UserError&) {  // a first record that is cut is refused
        }
        const client::LoadResult result =
            client::loadBooks(source.books, source.onKnownBook, reader_, library_);
        isAnyKept = !result.kept.isEmpty();
        return result.changed;
    }

    std::vector<host::BookRecord> records() { return reader_.records(); }

    bool isAnyKept = false;  // of the last file, because it differed

private:
    host::ReaderStore reader_{":memory:"};
    host::LibraryStore library_{":memory:"};
};
