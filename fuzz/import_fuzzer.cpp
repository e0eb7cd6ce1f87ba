// Hostile documents meet a reader database. The first byte of the input says what the rest
// is: a document, the text of its dump's element, the dump, or the dump's JSON.
#include <map>
#include <optional>
#include <tuple>

#include "document.h"
#include "files.h"
#include "fuzz_target.h"
#include "import_result.h"
#include "reader_database_state.h"
#include "readerlib/import_export_db.h"
#include "sample_records.h"
#include "scratch_directory.h"

namespace {

using fuzz::check;

constexpr char kDocument[] = "export.html";

std::string documentOfInput(const std::string& input) {
    const std::string rest = input.empty() ? "" : input.substr(1);
    switch (static_cast<unsigned char>(input[0]) % 4) {
        case 0:
            return rest;
        case 1:
            return documentAround(rest);
        case 2:
            return documentOf(rest);
        default:
            return documentOf(gzipped(rest));
    }
}

struct Device {
    Device() {
        std::string path = ":memory:";
        check(database.open(path), "the reader database opens");
        database.state->store.merge(sampleBooks());
    }
    int import() {
        return Veloran::ReaderLib::ImportExportDBV2(&database, 10, 3)
            .books_import(kDocument);
    }

    Veloran::ReaderLib::DataBase database;
};

// What is known of each book, note and tag, and since when.
using Facts = std::map<std::vector<std::string>,
                       std::tuple<std::int64_t, std::string, std::optional<std::string>>>;

Facts factsIn(Device& device) {
    Facts facts;
    for (const host::BookRecord& book : device.database.state->store.records()) {
        facts[{book.fastHash}] = {0, book.title, book.path};
        for (const host::NoteRecord& note : book.notes) {
            facts[{book.fastHash, note.uuid}] = {};
            for (const host::TagRecord& tag : note.tags) {
                facts[{book.fastHash, note.uuid, std::to_string(tag.tag)}] = {
                    tag.timestamp, tag.text, tag.json};
            }
        }
    }
    return facts;
}

void checkAllKept(const Facts& before, const Facts& now) {
    for (const auto& [name, fact] : before) {
        const auto kept = now.find(name);
        check(kept != now.end() &&
                  (kept->second == fact || std::get<0>(kept->second) > std::get<0>(fact)),
              "an import keeps what was there: " + name.front() + " " + name.back());
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchDirectory scratch;
    static std::optional<Device> device;  // serves until an import succeeds
    static Facts before;
    if (!device) {
        before = factsIn(device.emplace());
    }
    writeFile(kDocument, documentOfInput(std::string(data, data + size)));
    const int result = device->import();
    const Facts after = factsIn(*device);
    if (result < 0) {
        check(result == host::kNoDump || result == host::kDumpDamaged ||
                  result == host::kVersionUnknown,
              "the document is the reason: " + std::to_string(result));
        check(after == before, "an import that fails changes nothing");
        return 0;
    }
    check(result == 0 || after != before, "what came in is there");
    checkAllKept(before, after);
    check(device->import() == 0, "a second import brings nothing");
    check(factsIn(*device) == after, "a second import changes nothing");
    device.reset();
    return 0;
}
