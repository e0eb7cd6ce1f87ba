// Records for the host platform's reader database, on devices and in dumps.
#pragma once

#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "dump/format.h"
#include "dump/gzip_writer.h"
#include "engine.h"
#include "scratch_files.h"
#include "store/database_paths.h"
#include "store/note_tags.h"
#include "store/reader_store.h"

// Returns the records as text, for comparison and messages.
inline std::string show(const std::vector<host::BookRecord>& books) {
    std::ostringstream out;
    for (const host::BookRecord& book : books) {
        out << "book " << book.fastHash << '|' << book.title << '|' << book.path << '\n';
        for (const host::NoteRecord& note : book.notes) {
            out << "  note " << note.uuid << '\n';
            for (const host::TagRecord& tag : note.tags) {
                out << "    " << tag.tag << '|' << tag.text << '|' << tag.json.value_or("-")
                    << '|' << tag.timestamp << '\n';
            }
        }
    }
    return out.str();
}

// Returns two books in the dump's order, with every kind of tag and string: unknown tags,
// bytes that are not text, a uuid of two notes.
inline std::vector<host::BookRecord> sampleBooks() {
    const host::NoteRecord full = {
        "full",
        {{-7, "unknown", "null", 1},
         {host::kUuidTag, "full", {}, 100},
         {host::kAnchorTag, "", R"({"anchor":"b?page=1.5","more":[1,{}]})", 100},
         {host::kTextTag, "a \"quoted\" \xe2\x80\xa9 line\n", {}, -5},
         {host::kImageTag, std::string("\xff\xd8\0\x01", 4), {}, 5000000000}}};
    return {{"abff",
             std::string("T\0itle", 6),
             "/Books/\xe4\xb8\xad.epub",
             {{"without tags", {}}, full, {"later", {{host::kUuidTag, "later", {}, 100}}}}},
            {"cd", "", "", {{"full", {{host::kUuidTag, "of another book", {}, 7}}}}}};
}

// Return the payload of `text`, and that of a dump of the books in JSON.
inline std::string gzipped(const std::string& text) {
    std::string payload;
    host::GzipWriter writer(payload, host::DumpLimits().size);
    for (const char c : text) {
        writer.Put(c);
    }
    writer.finish();
    return payload;
}

inline std::string dumpOf(const std::string& books) {
    return gzipped(R"({"format":"notes-export-dump","version":1,"books":[)" + books + "]}");
}

// Return the content of the device's reader database, as records and as bytes.
inline std::string recordsOnDevice() {
    return show(host::ReaderStore(host::kReaderDatabasePath).records());
}

inline std::string databaseBytes() {
    const std::string path = host::kReaderDatabasePath;
    return readFile(path) + readFile(path + "-journal");
}

// Merges the records into the device's reader database.
inline int merge(const std::vector<host::BookRecord>& books) {
    return host::ReaderStore(host::kReaderDatabasePath).merge(books);
}

// Returns the payload of the device's first two books.
inline std::string exported() {
    std::string payload;
    const bool done = Engine()->books_export(payload, {1, 2});
    return done ? payload : throw std::logic_error("no payload");
}
