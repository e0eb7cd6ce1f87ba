// Imports hostile documents. The first byte of the input selects the rest: a document, the
// text of its dump's element, the dump, or the dump's JSON.
#include <map>
#include <optional>
#include <tuple>

#include "database_state.h"
#include "dump/import_result.h"
#include "dump/reader.h"
#include "fuzz_target.h"
#include "host_records.h"
#include "readerlib/import_export_db.h"

namespace {

using fuzz::check;

constexpr char kDocument[] = "export.html";

std::string documentOfInput(const std::string& input) {
    const std::string rest = input.empty() ? "" : input.substr(1);
    const int kind = static_cast<unsigned char>(input[0]) % 4;
    if (kind < 2) {
        return kind == 0 ? rest : documentAround(rest);
    }
    return documentOf(kind == 2 ? rest : gzipped(rest));
}

struct Device {
    Device() {
        database.state.reset(new Veloran::ReaderLib::DataBase::State{":memory:"});
        database.state->current().merge(sampleBooks());
    }
    int import() {
        return Veloran::ReaderLib::ImportExportDBV2(&database, 10, 3)
            .books_import(kDocument);
    }

    Veloran::ReaderLib::DataBase database;
};

// The content of each book, note and tag, with its timestamp.
using Fact = std::tuple<std::int64_t, std::string, std::optional<std::string>>;
using Facts = std::map<std::vector<std::string>, Fact>;

// Returns the facts after an import of the records: of each tag the newer one, in a tie the
// first.
Facts merged(Facts facts, const std::vector<host::BookRecord>& books) {
    for (const host::BookRecord& book : books) {
        facts.try_emplace({book.fastHash}, 0, book.title, book.path);
        for (const host::NoteRecord& note : book.notes) {
            facts.try_emplace({book.fastHash, note.uuid});
            for (const host::TagRecord& tag : note.tags) {
                const Fact incoming(tag.timestamp, tag.text, tag.json);
                const std::vector<std::string> name = {book.fastHash, note.uuid,
                                                       std::to_string(tag.tag)};
                Fact& fact = facts.try_emplace(name, incoming).first->second;
                fact = std::get<0>(fact) < tag.timestamp ? incoming : fact;
            }
        }
    }
    return facts;
}

Facts factsIn(Device& device) {
    return merged({}, device.database.state->current().records());
}

std::string outcomeOf(int result) {
    return result == host::kNoDump           ? "no_dump"
           : result == host::kDumpDamaged    ? "damaged"
           : result == host::kVersionUnknown ? "version_unknown"
                                             : "brings_" + std::to_string(result);
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchDirectory scratch;
    static std::optional<Device> device;  // used until an import succeeds
    static Facts before;
    if (!device) {
        before = factsIn(device.emplace());
    }
    writeFile(kDocument, documentOfInput(std::string(data, data + size)));
    const int result = device->import();
    const Facts after = factsIn(*device);
    fuzz::outcome = outcomeOf(result);
    if (result < 0) {
        check(fuzz::outcome.find('-') == std::string::npos, "the document is the cause");
        check(after == before, "a failed import changes nothing");
        return 0;
    }
    check(after == merged(before, host::readDump(kDocument)), "the records are merged");
    check(result == 0 || after != before, "a positive result means a change");
    check(device->import() == 0, "a second import adds nothing");
    check(factsIn(*device) == after, "a second import changes nothing");
    device.reset();
    return 0;
}
