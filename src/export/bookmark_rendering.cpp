#include "export/notes_exporter_impl.h"
#include "utilities/serialization_utils.h"
#include "writer/rewrite.h"

namespace veloran {

namespace {

using markup::Replacement;

constexpr char kLineBreak[] = "<br/>";
constexpr char kParagraphBreak[] = "</p><p>";

// The text is read up to its zero byte, so that looking one byte ahead at a time never
// passes its end.
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

// The text as the content of a `p` element: only its breaks become markup.
std::string paragraphMarkup(const std::string& text) {
    std::string result;
    result.reserve(text.size());
    markup::rewrite(
        text.c_str(), paragraphMarkupAt,
        [&result](const char* bytes, std::size_t length) { result.append(bytes, length); });
    return result;
}

void writeParagraphs(Writer& writer, const char* blockClass, const std::string& text) {
    if (text.empty()) {
        return;
    }
    const std::string paragraphs = paragraphMarkup(text);
    writer.openElt("div").writeAttr("class", blockClass);
    writer.openElt("p").writeRaw(paragraphs.c_str()).closeElt();
    writer.closeElt();
}

// Browsers look at the bytes, not at the media type: a picture of another format shows too.
void writePicture(Writer& writer, const std::string& image) {
    if (image.empty()) {
        return;
    }
    writer.openElt("div").writeAttr("class", "bm-image");
    writer.openElt("img");
    std::string source = utilities::SerializationUtils::ToBase64(image);
    source.insert(0, "data:image/jpeg;base64,");
    writer.writeAttr("src", source.c_str()).closeElt();
    writer.closeElt();
}

std::string colorClass(std::string color) {
    return "bookmark bm-color-" + (color.empty() ? "note" : std::move(color));
}

}  // namespace

int NotesExporterImpl::writeBookmark(Writer& writer, const utilities::Note& note) {
    const std::string blockClass = colorClass(note.getColor());
    writer.openElt("div");
    writer.writeAttr("id", note.uuid().c_str()).writeAttr("class", blockClass.c_str());
    writer.openElt("p").writeAttr("class", "bm-page");
    writer.writeText(getNotePage(note).c_str()).closeElt();
    writeParagraphs(writer, "bm-text", note.getText());
    writePicture(writer, note.getImage());
    writeParagraphs(writer, "bm-note", note.getNote());
    writer.closeElt();
    return 0;
}

}  // namespace veloran
