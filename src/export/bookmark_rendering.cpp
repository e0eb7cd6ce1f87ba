#include <utility>

#include "export/notes_exporter_impl.h"
#include "utilities/serialization_utils.h"
#include "writer/rewrite.h"

namespace veloran {

namespace {

using markup::Replacement;

constexpr char kLineBreak[] = "<br/>";
constexpr char kParagraphBreak[] = "</p><p>";

// Each comparison stops at the zero byte, so it never reads past the end.
Replacement unicodeBreakAt(const char* text) {
    if (text[1] == '\x80' && text[2] == '\xA8') {  // U+2028 LINE SEPARATOR
        return {kLineBreak, 3};
    }
    if (text[1] == '\x80' && text[2] == '\xA9') {  // U+2029 PARAGRAPH SEPARATOR
        return {kParagraphBreak, 3};
    }
    return {};
}

Replacement paragraphMarkupAt(const char* text) {
    switch (*text) {
        case '\n':
            return {kLineBreak};
        case '\xE2':
            return unicodeBreakAt(text);
        default:
            return markup::entityAt(text);
    }
}

constexpr markup::Rewriting kParagraphMarkup = {"&<>'\"\n\xE2", paragraphMarkupAt};

void writeParagraphs(Writer& writer, const char* blockClass, const std::string& text) {
    if (text.empty()) {
        return;
    }
    writer.openElt("div").writeAttr("class", blockClass);
    writer.openElt("p").writeRewritten(text.c_str(), kParagraphMarkup).closeElt();
    writer.closeElt();
}

// Browsers detect the format from the bytes, so a picture of another format is shown too.
void writePicture(Writer& writer, std::string image) {
    if (image.empty()) {
        return;
    }
    writer.openElt("div").writeAttr("class", "bm-image").openElt("img");
    const std::string base64 =  // then the bytes are freed
        utilities::SerializationUtils::ToBase64(std::exchange(image, {}));
    writer.writeAttr("src", "data:image/jpeg;base64,", base64.c_str());
    writer.closeElt().closeElt();
}

}  // namespace

int NotesExporterImpl::writeBookmark(Writer& writer, const utilities::Note& note) {
    const std::string color = note.getColor();
    const char* colorClass = color.empty() ? "note" : color.c_str();
    writer.openElt("div").writeAttr("id", note.uuid().c_str());
    writer.writeAttr("class", "bookmark bm-color-", colorClass);
    writer.openElt("p").writeAttr("class", "bm-page");
    writer.writeText(getNotePage(note).c_str()).closeElt();
    writeParagraphs(writer, "bm-text", note.getText());
    writePicture(writer, note.getImage());
    writeParagraphs(writer, "bm-note", note.getNote());
    writer.closeElt();
    return 0;
}

}  // namespace veloran
