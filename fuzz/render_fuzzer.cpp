// Exports arbitrary texts and compares the document with the expected one. The input has
// title, author, dump and hash, then notes: identifier, colour, page, text, comment and
// picture.
#include <climits>
#include <cmath>
#include <filesystem>

#include "canonical_xml.h"
#include "export/notes_exporter_impl.h"
#include "fuzz_target.h"
#include "scratch_files.h"
#include "script.h"
#include "utilities/serialization_utils.h"

namespace {

using scripted::NoteFields;
using scripted::script;
using veloran::utilities::SerializationUtils;

constexpr char kBook[] = "626f6f6b";

std::vector<NoteFields> notesOf(const std::vector<std::string>& records) {
    std::vector<NoteFields> notes;
    for (std::size_t id = 1; id < records.size(); ++id) {
        const auto note = fuzz::fieldsOf(records[id], '\x1f', 6);
        notes.push_back({id, note[0], note[1], note[3], note[5], note[4], note[2]});
    }
    return notes;
}

double pageOf(const NoteFields& note) { return std::strtod(note.anchor.c_str(), nullptr); }

struct Device {
    scripted::LibraryBook book;
    std::string payload;
    std::string hash;
    std::vector<NoteFields> notes;
};

std::string exported(const Device& device) {
    script() = {};
    script().bookIdsByUid["book"] = 7;
    script().booksOfLibrary[7] = device.book;
    script().itemIds[kBook] = 42;
    script().fastHashes[42] = device.hash;
    script().payload = device.payload;
    for (const NoteFields& note : device.notes) {
        scripted::addNote(kBook, note);
        script().pages[note.anchor] = pageOf(note);
    }
    veloran::NotesExporterImpl exporter;
    exporter.setExportDir("Notes");
    const std::string path = exporter.getExportFilename(kBook);
    const auto asInInput = [](long long a, long long b) { return a < b; };
    fuzz::check(exporter.export_bookmarks_to_html(kBook, {}, asInInput) == 0,
                "the export succeeds");
    const std::string document = readFile(path);
    std::filesystem::remove(path);
    return document;
}

// Returns the field up to its first zero byte, with markup escaped and then the breaks
// replaced.
std::string text(const std::string& field,
                 std::vector<std::pair<std::string, std::string>> replacements = {}) {
    std::string text = fuzz::legal(field.c_str());
    replacements.insert(replacements.begin(),
                        {{"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}, {"\"", "&quot;"}});
    for (const auto& [from, to] : replacements) {
        for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos;) {
            text.replace(at, from.size(), to);
            at += to.size();
        }
    }
    return text;
}

std::string paragraphs(const std::string& field) {
    return "<p>" +
           text(field, {{"\u2028", "<br/>"}, {"\n", "<br/>"}, {"\u2029", "</p><p>"}}) +
           "</p>";
}

std::string picture(const std::string& image) {
    return R"(<img src="data:image/jpeg;base64,)" + SerializationUtils::ToBase64(image) +
           "\"/>";
}

std::string dump(const std::string& payload, const std::string& hash) {
    std::string lines = SerializationUtils::ToBase64(payload);
    for (std::size_t end = 72; end < lines.size(); end += 73) {
        lines.insert(end, "\n");
    }
    return payload.empty()
               ? ""
               : "\n    <script type=\"application/x-veloran-dbdump\" book_hash=\"" +
                     text(hash) + "\">" + lines + "</script>";
}

std::string pageLabel(const NoteFields& note) {
    const double whole = std::trunc(pageOf(note));
    return whole >= INT_MIN && whole <= INT_MAX ? std::to_string(static_cast<int>(whole))
                                                : "";
}

std::string block(const std::string& name, const std::string& content) {
    return "\n      <div class=\"" + name + "\">\n        " + content + "\n      </div>";
}

std::string expectedNote(const NoteFields& note) {
    return "\n    <div id=\"" + text(note.uuid) + "\" class=\"bookmark bm-color-" +
           (note.color.empty() ? "note" : text(note.color)) +
           "\">\n      <p class=\"bm-page\">" + pageLabel(note) + "</p>" +
           (note.text.empty() ? "" : block("bm-text", paragraphs(note.text))) +
           (note.image.empty() ? "" : block("bm-image", picture(note.image))) +
           (note.comment.empty() ? "" : block("bm-note", paragraphs(note.comment))) +
           "\n    </div>";
}

std::string heading(const std::string& content) {
    return "\n    <div class=\"bookmark bm-color-note\">\n      " + content +
           "\n    </div>";
}

std::string expected(const Device& device, const std::string& date) {
    const std::string title = date + " - " + text(device.book.title);
    std::string body = heading("<h1>" + title + "</h1>");
    if (!device.book.author.empty()) {
        body += heading("<span>" + text(device.book.author) + "</span>");
    }
    for (const NoteFields& note : device.notes) {
        body += expectedNote(note);
    }
    return R"(<html xmlns="http://www.w3.org/1999/xhtml">
  <head>
    <meta name="generator" content="Veloran Bookmarks Export"/>
    <meta charset="UTF-8"/>
    <title>)" +
           title + R"(</title>
    <style type="text/css"><!--/*-->/*&gt;&lt;!--*/

/**/--&gt;</style>)" +
           dump(device.payload, device.hash) + "\n  </head>\n  <body>" + body +
           "\n  </body>\n</html>";
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchDirectory scratch;
    const auto records =
        fuzz::fieldsOf({reinterpret_cast<const char*>(data), size}, '\x1e');
    const auto head = fuzz::fieldsOf(records[0], '\x1f', 4);
    // A longer title would not be a valid file name.
    const Device device = {
        {head[0].substr(0, 200), head[1]}, head[2], head[3], notesOf(records)};
    const std::string document = fuzz::canonical(fuzz::legal(exported(device)));
    const std::string date = document.substr(document.find("<title>") + 7, 19);
    fuzz::check(date.find_first_not_of("0123456789-: ") == std::string::npos, date);
    const std::string wanted = fuzz::canonical(expected(device, date));
    fuzz::check(document == wanted, document + "\nis " + wanted);
    return 0;
}
