#include <ctime>
#include <string_view>

#include "export/device_paths.h"
#include "export/fail_stop_file.h"
#include "export/file_mark.h"
#include "export/notes_exporter_impl.h"
#include "oa_buildpath.h"

namespace veloran {

namespace {

constexpr long long kUnknownBook = -1;
constexpr std::string_view kDocumentType =
    "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Strict//EN\""
    " \"http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd\">";
static_assert(kDocumentType.size() == 109);
constexpr char kXhtmlNamespace[] = "http://www.w3.org/1999/xhtml";
constexpr char kHeadingClass[] = "bookmark bm-color-note";

// Returns the local time. localtime_r is thread-safe, but needs tzset to read the time
// zone.
std::string formatted(std::time_t time) {
    std::tm local{};
    tzset();
    localtime_r(&time, &local);
    char text[64];
    return {text, std::strftime(text, sizeof text, "%F %T", &local)};
}

std::string documentTitle(const std::string& bookHash) {
    const std::string date = formatted(std::time(nullptr));
    return date + " - " + NotesExporterImpl::getBookTitle(bookHash);
}

void writeHeading(Writer& writer, const char* element, const std::string& text) {
    writer.openElt("div").writeAttr("class", kHeadingClass);
    writer.openElt(element).writeText(text.c_str()).closeElt();
    writer.closeElt();
}

void writeHeadings(Writer& writer, const std::string& title, const std::string& bookHash) {
    writeHeading(writer, "h1", title);
    const std::string author = NotesExporterImpl::getBookAuthorFromExplorerDB(bookHash);
    if (!author.empty()) {
        writeHeading(writer, "span", author);
    }
}

void writeMetadata(Writer& writer, const std::string& title) {
    writer.openElt("meta").writeAttr("name", "generator");
    writer.writeAttr("content", "Veloran Bookmarks Export").closeElt();
    writer.openElt("meta").writeAttr("charset", "UTF-8").closeElt();
    writer.openElt("title").writeText(title.c_str()).closeElt();
}

}  // namespace

NotesExporterImpl::NotesExporterImpl() : exportDir_(kDefaultExportDir) {
    std::string path = kReaderDatabase;
    database_.open(path);
}

int NotesExporterImpl::export_bookmarks_to_html(const std::string& bookHash,
                                                const std::set<unsigned long long>& ids,
                                                const NoteOrder& before) {
    const long long itemId = readerDb_.getItemId(bookHash);
    if (itemId == kUnknownBook) {
        return -1;
    }
    const std::string path = getExportFilename(bookHash);
    oa_buildpath(path.c_str());
    FailStopFile file(path);
    const std::string title = documentTitle(bookHash);
    file.write(kDocumentType.data(), kDocumentType.size());

    Writer writer(file);
    writer.openElt("html").writeAttr("xmlns", kXhtmlNamespace);
    writer.openElt("head");
    writeMetadata(writer, title);
    writeExportCss(writer);
    writeBinaryDump(writer, itemId, ids);
    writer.closeElt();
    writer.openElt("body");
    writeHeadings(writer, title, bookHash);
    writeBookmarks(writer, bookHash, ids, before);
    while (writer.depth() != 0) {
        writer.closeElt();
    }
    file.close();
    markFile(hashOfFile(path));
    return 0;
}

}  // namespace veloran
