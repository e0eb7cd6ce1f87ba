#include "records.h"

#include <sstream>
#include <stdexcept>

#include "dump_format.h"
#include "gzip_writer.h"

std::string show(const std::vector<host::BookRecord>& books) {
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

std::vector<host::BookRecord> sampleBooks() {
    const host::NoteRecord full = {
        "full",
        {{-7, "unknown", "null", 1},
         {host::kUuidTag, "full", {}, 100},
         {host::kAnchorTag, "", R"({"anchor":"b?page=1.5","more":[1,{}]})", 100},
         {host::kTextTag, "a \"quoted\" \xe2\x80\xa9 line\n", {}, -5},
         {host::kImageTag, std::string("\xff\xd8\0\x01", 4), {}, 5000000000}}};
    return {{"ab\xff",
             std::string("T\0itle", 6),
             "/Books/\xe4\xb8\xad.epub",
             {{"without tags", {}}, full, {"later", {{host::kUuidTag, "later", {}, 100}}}}},
            {"cd", "", "", {{"full", {{host::kUuidTag, "of another book", {}, 7}}}}}};
}

std::string gzipped(const std::string& text) {
    std::string payload;
    host::GzipWriter writer(payload, host::kMaxDumpSize);
    for (const char c : text) {
        writer.Put(c);
    }
    writer.finish();
    return payload;
}

std::string dumpOf(const std::string& books) {
    return gzipped(R"({"format":"notes-export-dump","version":1,"books":[)" + books + "]}");
}

std::string recordsOnDevice() {
    return show(host::ReaderStore(host::kReaderDatabasePath).records());
}

std::string databaseBytes() {
    const std::string path = host::kReaderDatabasePath;
    return readFile(path) + readFile(path + "-journal");
}

int merge(const std::vector<host::BookRecord>& books) {
    return host::ReaderStore(host::kReaderDatabasePath).merge(books);
}

std::string exported() {
    std::string payload;
    const bool done = Engine()->books_export(payload, {1, 2});  // the first rows
    return done ? payload : throw std::logic_error("no payload");
}
