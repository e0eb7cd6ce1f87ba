// Loads the notes of one book.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include "client/collection/loading.h"

namespace client {

class NoteLoader {
public:
    // `bookId` is the book's row. The references must stay valid.
    NoteLoader(host::ReaderStore& store, std::int64_t bookId, const Book& book,
               LoadResult& result)
        : store_(store), bookId_(bookId), book_(book), result_(result) {}

    // Takes the records out of the book.
    void load(IncomingBook& book);

private:
    void loadNote(const IncomingBook& book, Note note);
    void merge(const host::NoteRecord& note);
    bool completePosition(std::int64_t id, const host::NoteRecord& present,
                          const host::NoteRecord& loaded);
    std::optional<host::NoteRecord> known(const std::string& uuid);
    std::string knownUuid(const IncomingBook& book, const std::string& uuid);

    host::ReaderStore& store_;
    const std::int64_t bookId_;
    const Book& book_;
    LoadResult& result_;
    std::set<std::string> keptUuids_;  // former uuids that notes of this load have
};

}  // namespace client
