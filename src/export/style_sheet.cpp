#include <array>
#include <fstream>
#include <locale>

#include "export/device_paths.h"
#include "export/notes_exporter_impl.h"

namespace veloran {

namespace {

// Hides the style sheet's text from XML and from HTML parsers alike.
constexpr char kOpening[] = "<!--/*--><![CDATA[/*><!--*/\n";
constexpr char kClosing[] = "\n/*]]>*/-->";

void copy(std::istream& file, Writer& writer) {
    std::array<char, 1024> block;
    while (file.good()) {
        file.read(block.data(), block.size());
        const std::string text(block.data(), static_cast<std::size_t>(file.gcount()));
        if (!text.empty()) {
            writer.writeRaw(text.c_str());  // a block ends at a zero byte
        }
    }
}

}  // namespace

int NotesExporterImpl::writeExportCss(Writer& writer) {
    std::ifstream file;
    file.imbue(std::locale::classic());  // a global locale may convert bytes
    file.open(kNoteStyleSheet);
    writer.openElt("style").writeAttr("type", "text/css").writeRaw(kOpening);
    copy(file, writer);
    file.close();
    writer.writeRaw(kClosing).closeElt();
    return 0;
}

}  // namespace veloran
