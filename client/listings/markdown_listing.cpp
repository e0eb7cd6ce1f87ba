// Lists in Markdown. The notes of one book are a document with front matter; those of
// several books have none, because front matter can only be at the start.
#include "client/listings/listing.h"
#include "client/listings/markdown_text.h"
#include "client/listings/picture_folder.h"
#include "client/text/control_characters.h"
#include "client/text/line_breaks.h"

namespace client {
namespace {

// Returns a double-quoted scalar of YAML.
std::string quoted(const std::string& text) {
    return '"' + replaced(replaced(oneLine(text), "\\", "\\\\"), "\"", "\\\"") + '"';
}

std::string frontMatter(const Book& book) {
    return "---\ntitle: " + quoted(book.title) + "\nauthor: " + quoted(book.author) +
           "\nhash: " + quoted(book.hash) + "\n---\n\n";
}

// Returns the note's place, colour, picture and time, for the line below it.
std::string lastLine(const Note& note, bool hasHiddenPicture) {
    std::string result = "\u2014";
    const char* separator = " ";
    const auto add = [&](const std::string& fact) {
        result += fact.empty() ? "" : separator + fact;
        separator = fact.empty() ? separator : ", ";
    };
    add(placeText(note, "page ", "location "));
    add(markdownLine(note.color));
    add(hasHiddenPicture ? "picture" : "");
    add(timeText(note));
    return result;
}

class MarkdownBooks : public BookListing {
public:
    using BookListing::BookListing;

    void add(const Book& book) override {
        out_ << "- " << markdownLine(nameOf(book));
        if (!book.author.empty()) {
            out_ << ", " << markdownLine(book.author);
        }
        out_ << " (" << markdownLine(book.hash) << ")\n";
    }
};

class MarkdownNotes : public NoteListing {
public:
    using NoteListing::NoteListing;

    void startBook(const Book& book) override;
    void add(const Note& note) override;

private:
    void writePart(const std::string& text);

    std::string title_;           // of the book, for names of pictures
    std::string chapter_;         // of the last heading
    const char* separator_ = "";  // between the parts of the document
};

void MarkdownNotes::startBook(const Book& book) {
    title_ = nameOf(book);
    chapter_.clear();
    if (!options_.severalBooks) {
        out_ << frontMatter(book);
    }
    writePart("# " + markdownLine(nameOf(book)) + '\n');
    writePart(book.author.empty() ? "" : markdownLine(book.author) + '\n');
    writePart(options_.severalBooks ? markdownLine(book.hash) + '\n' : "");
}

// A note without a chapter stays under the last heading.
void MarkdownNotes::add(const Note& note) {
    const std::string& chapter = note.place.chapter;
    if (!chapter.empty() && chapter != chapter_) {
        writePart("## " + markdownLine(chapter) + '\n');
        chapter_ = chapter;
    }
    writePart(markdownParagraphs(note.text, "> "));
    const std::string link = addPicture(note.picture, title_, options_.pictures);
    writePart(link.empty() ? "" : "![picture](" + link + ")\n");
    writePart(markdownParagraphs(note.comment, ""));
    writePart(lastLine(note, !note.picture.empty() && link.empty()) + '\n');
}

void MarkdownNotes::writePart(const std::string& text) {
    if (!text.empty()) {
        out_ << separator_ << text;
        separator_ = "\n";
    }
}

}  // namespace

constexpr ListingFormat kMarkdownFormat = {"markdown", makeBookListing<MarkdownBooks>,
                                           makeNoteListing<MarkdownNotes>};

}  // namespace client
