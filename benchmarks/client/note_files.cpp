#include "note_files.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <unistd.h>

#include <cstdint>
#include <fstream>
#include <string>

#include "sample_notes.h"

namespace {

namespace fs = std::filesystem;

std::string titleOf(std::size_t book) { return "Book " + std::to_string(book); }

// Returns a uuid whose place in an index is as random as that of a real one.
std::string uuidOf(std::size_t book, std::size_t note) {
    constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;
    const std::uint64_t first = (book * 1000000 + note + 1) * kOdd;
    return std::to_string(first) + "-" + std::to_string(first * kOdd);
}

std::string quoted(const std::string& text) {
    std::string result = "\"";
    for (const char byte : text) {
        result.append(byte == '"' || byte == '\\' ? 1 : 0, '\\') += byte;
    }
    return result + '"';
}

void writeDeviceFile(std::size_t books, std::size_t notes) {
    std::ofstream file(kDeviceFile);
    file << R"({"books": [)";
    for (std::size_t book = 0; book < books; ++book) {
        file << (book == 0 ? "" : ",") << R"({"hash": ")" << 1000000 + 2 * book
             << R"(0", "title": )" << quoted(titleOf(book))
             << R"(, "author": "Author", "notes": [)";
        for (std::size_t note = 0; note < notes; ++note) {
            file << (note == 0 ? "" : ",\n") << R"({"timestamp": 1700000000, "uuid": )"
                 << quoted(uuidOf(book, note)) << R"(, "page": )" << note + 1
                 << R"(, "color": "yellow", "text": )" << quoted(sampleText(note)) << '}';
        }
        file << "]}";
    }
    file << "]}";
}

void writeClippings(std::size_t books, std::size_t notes) {
    std::ofstream file(kClippings);
    for (std::size_t book = 0; book < books; ++book) {
        for (std::size_t note = 0; note < notes; ++note) {
            file << titleOf(book) << " (Author)\r\n- Your Highlight on page " << note + 1
                 << " | Location " << 3 * note + 1 << '-' << 3 * note + 2
                 << " | Added on Sunday, June 10, 2012 10:22:37 PM\r\n\r\n"
                 << sampleText(note) << "\r\n==========\r\n";
        }
    }
}

void writeAnnotationSet(std::size_t notes) {
    std::ofstream file(kAnnotationSet);
    file << R"({"@context": "http://www.w3.org/ns/anno.jsonld", "type": "AnnotationSet",)"
         << R"("about": {"dc:title": "Book 0", "dc:creator": "Author"}, "items": [)";
    for (std::size_t note = 0; note < notes; ++note) {
        file << (note == 0 ? "" : ",\n") << R"({"created": "2026-03-07T09:05:01Z", "id": )"
             << quoted("urn:uuid:" + uuidOf(0, note))
             << R"(, "target": {"source": "c1.xhtml", "meta": {"page": ")" << note + 1
             << R"("}, "selector": [{"type": "TextQuoteSelector", "exact": )"
             << quoted(sampleText(note))
             << R"(}]}, "body": {"type": "TextualBody", "color": "yellow", "value": ""}})";
    }
    file << "]}";
}

void writeSidecar(std::size_t notes) {
    std::ofstream file(kSidecar);
    file << R"(return {["annotations"] = {)";
    for (std::size_t note = 1; note <= notes; ++note) {
        file << '[' << note << R"(] = {["color"] = "yellow", ["drawer"] = "lighten",)"
             << R"(["datetime"] = "2026-03-07 09:05:01", ["pageno"] = )" << note
             << R"(, ["pos0"] = "/body/DocFragment[1]/body/p[)" << note
             << R"(]/text().0", ["text"] = )" << quoted(sampleText(note - 1)) << "},\n";
    }
    file << R"(}, ["doc_props"] = {["title"] = "Book 0", ["authors"] = "Author"}})";
}

void writeKoboDatabase(std::size_t books, std::size_t notes) {
    SQLite::Database database(kKoboDatabase, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    SQLite::Transaction transaction(database);
    database.exec(
        "CREATE TABLE content (ContentID TEXT PRIMARY KEY, ContentType TEXT, Title TEXT, "
        "Attribution TEXT, VolumeIndex INTEGER);"
        "CREATE TABLE Bookmark (BookmarkID TEXT PRIMARY KEY, VolumeID TEXT, ContentID "
        "TEXT, Text TEXT, DateCreated TEXT, ChapterProgress REAL, Color INTEGER)");
    SQLite::Statement insert(
        database,
        "INSERT INTO Bookmark VALUES (?, ?, '', ?, '2024-01-15T14:30:00.000', ?, 0)");
    for (std::size_t book = 0; book < books; ++book) {
        database.exec("INSERT INTO content VALUES ('" + titleOf(book) + "', 6, '" +
                      titleOf(book) + "', 'Author', -1)");
        for (std::size_t note = 0; note < notes; ++note) {
            insert.reset();
            insert.bind(1, uuidOf(book, note));
            insert.bind(2, titleOf(book));
            insert.bind(3, sampleText(note));
            insert.bind(4, static_cast<double>(note));
            insert.exec();
        }
    }
    transaction.commit();
}

}  // namespace

ScratchFolder::ScratchFolder()
    : path_(fs::temp_directory_path() /
            ("notes-export-benchmark-" + std::to_string(getpid()))) {
    fs::create_directories(path_);
}

ScratchFolder::~ScratchFolder() {
    fs::current_path(fs::temp_directory_path());
    fs::remove_all(path_);
}

void enterNoteFiles(std::size_t books, std::size_t notes) {
    const fs::path folder = std::to_string(books) + "x" + std::to_string(notes);
    const bool isThere = !fs::create_directories(folder);
    fs::current_path(folder);
    if (!isThere) {
        writeDeviceFile(books, notes);
        writeClippings(books, notes);
        writeAnnotationSet(notes);
        writeSidecar(notes);
        writeKoboDatabase(books, notes);
    }
}
