#include "dump/reader.h"

#include <utility>

#include "dump/element.h"
#include "dump/gunzip_stream.h"
#include "dump/handler.h"
#include "dump/import_result.h"
#include "dump/json_sax.h"

namespace host {

std::vector<BookRecord> readDump(const std::string& path) {
    return readPayload(readDumpElement(path));
}

std::vector<BookRecord> readPayload(Payload payload, const DumpLimits& limits) {
    GunzipStream text(std::move(payload), limits.size);
    JsonReader reader;
    DumpHandler handler(limits.records);
    if (reader.Parse(text, handler).IsError()) {
        const ImportResult failure = handler.failure();
        throw DumpError(failure, failure == kVersionUnknown
                                     ? "its dump was written by a later version"
                                     : "its dump does not hold the records of books");
    }
    if (!text.atEnd()) {
        throw DumpError(kDumpDamaged, "something follows the records in its dump");
    }
    return std::move(handler.books());
}

}  // namespace host
