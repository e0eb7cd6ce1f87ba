// Loads hostile files of every kind into a collection.
#include <set>

#include "client/collection/loading.h"
#include "client/error.h"
#include "client/sources/source.h"
#include "fuzz_target.h"
#include "scratch_files.h"
#include "store/book_hash.h"

namespace {

using client::IncomingBook;
using fuzz::check;

std::string uuidOf(const client::Note& note) { return note.uuid; }
std::string uuidOf(const host::NoteRecord& record) { return record.uuid; }

template <class Notes>
void checkUuids(const Notes& notes) {
    std::set<std::string> uuids;
    for (const auto& note : notes) {
        check(!uuidOf(note).empty(), "a note has a uuid");
        check(uuids.insert(uuidOf(note)).second, "uuids of a book are unique");
    }
}

void checkNames(const std::vector<IncomingBook>& books) {
    std::set<std::string> hashes;
    for (const IncomingBook& book : books) {
        check(host::isBookHash(book.book.hash), "a book has a valid hash");
        check(hashes.insert(book.book.hash).second, "hashes are unique");
        checkUuids(book.notes);
        checkUuids(book.records);
    }
}

int load(const char* file, host::ReaderStore& reader, host::LibraryStore& library) {
    client::SourceContent content = client::readSource(file);
    checkNames(content.books);
    return client::loadBooks(content.books, content.onKnownBook, reader, library).changed;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr char kFile[] = "source";
    static const ScratchDirectory scratch;
    writeFile(kFile, std::string(data, data + size));
    host::ReaderStore reader(":memory:");
    host::LibraryStore library(":memory:");
    try {
        const int changed = load(kFile, reader, library);
        check(load(kFile, reader, library) == 0, "a second load changes nothing");
        fuzz::outcome = "brings_" + std::to_string(changed);
    } catch (const client::UserError&) {
        fuzz::outcome = "refused";
    }
    return 0;
}
