// Hostile files of every kind that notes come in: recognised, read, and put on a device.
#include <set>
#include <sstream>

#include "client/error.h"
#include "client/sources/source.h"
#include "fuzz_target.h"
#include "scratch_files.h"
#include "store/book_hash.h"
#include "store/reader_store.h"

namespace {

using fuzz::check;
using Records = std::vector<host::BookRecord>;

Records recordsOf(const SourceContent& content) {
    Records records;
    for (const SourceBook& book : content.books) {
        records.push_back(book.record);
    }
    return records;
}

std::string shown(const SourceContent& content) {
    std::ostringstream text;
    for (const SourceBook& book : content.books) {
        text << book.record.fastHash << book.record.title << '|' << book.author << '\n';
        for (const host::NoteRecord& note : book.record.notes) {
            text << note.uuid;
            for (const host::TagRecord& tag : note.tags) {
                text << '|' << tag.tag << tag.text << tag.json.value_or("")
                     << tag.timestamp;
            }
        }
    }
    return text.str() + content.skipped.summary("");
}

void checkNames(const Records& books) {
    std::set<std::string> hashes;
    for (const host::BookRecord& book : books) {
        check(host::isBookHash(book.fastHash), "a book has a hash");
        check(hashes.insert(book.fastHash).second, "no two books have one hash");
        std::set<std::string> uuids;
        for (const host::NoteRecord& note : book.notes) {
            check(!note.uuid.empty(), "a note has a uuid");
            check(uuids.insert(note.uuid).second, "no two notes of a book have one uuid");
        }
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr char kFile[] = "source";
    static const ScratchDirectory scratch;
    writeFile(kFile, std::string(data, data + size));
    try {
        const SourceContent content = readSource(kFile);
        const Records records = recordsOf(content);
        checkNames(records);
        check(shown(readSource(kFile)) == shown(content), "it is read the same way again");
        host::ReaderStore store(":memory:");
        const int changed = store.load(records, content.knownBooks).changed;
        check(store.load(records, content.knownBooks).changed == 0,
              "a second load is idle");
        fuzz::outcome = "brings_" + std::to_string(changed);
    } catch (const Complaint&) {
        fuzz::outcome = "refused";
    }
    return 0;
}
