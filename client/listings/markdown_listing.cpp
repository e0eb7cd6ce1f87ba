// For collections of notes in Markdown. A book's notes are one document with front matter;
// those of several books are one without, as front matter has its place only at the start.
#include "client/collection/book_notes.h"
#include "client/listings/listing.h"
#include "client/listings/markdown_text.h"
#include "client/listings/picture_folder.h"
#include "client/text/line_breaks.h"
#include "client/text/numbers.h"
#include "client/text/one_line.h"

namespace {

using veloran::utilities::Note;

// A double-quoted scalar of YAML.
std::string quoted(const std::string& text) {
    return '"' + replaced(replaced(oneLine(text), "\\", "\\\\"), "\"", "\\\"") + '"';
}

std::string frontMatter(const ListedBook& book) {
    return "---\ntitle: " + quoted(book.title) + "\nauthor: " + quoted(book.author) +
           "\nhash: " + quoted(book.hash) + "\n---\n\n";
}

// What is known of the note besides.
std::string lastLine(const Note& note, bool hasHiddenPicture) {
    std::string result = "\u2014";
    const char* separator = " ";
    const auto add = [&](const std::string& fact) {
        result += fact.empty() ? "" : separator + fact;
        separator = fact.empty() ? separator : ", ";
    };
    const auto page = pageOf(note);
    add(page ? "page " + decimal(*page) : "");
    add(markdownLine(note.getColor()));
    add(hasHiddenPicture ? "picture" : "");
    add(timeOf(note));
    return result;
}

class MarkdownBooks : public BookListing {
public:
    explicit MarkdownBooks(std::ostream& out) : out_(out) {}

    void add(const ListedBook& book) override {
        out_ << "- " << markdownLine(nameOf(book));
        if (!book.author.empty()) {
            out_ << ", " << markdownLine(book.author);
        }
        out_ << " (" << markdownLine(book.hash) << ")\n";
    }

private:
    std::ostream& out_;
};

class MarkdownNotes : public NoteListing {
public:
    MarkdownNotes(std::ostream& out, const NoteListingOptions& options)
        : out_(out), severalBooks_(options.severalBooks), pictures_(options.pictures) {}

    void startBook(const ListedBook& book) override;
    void add(const Note& note) override;

private:
    void writePart(const std::string& text);

    std::ostream& out_;
    bool severalBooks_;
    PictureFolder pictures_;
    std::string title_;           // of the book, as part of a picture's name
    const char* separator_ = "";  // between the parts of the document
};

void MarkdownNotes::startBook(const ListedBook& book) {
    title_ = nameOf(book);
    if (!severalBooks_) {
        out_ << frontMatter(book);
    }
    writePart("# " + markdownLine(nameOf(book)) + '\n');
    writePart(book.author.empty() ? "" : markdownLine(book.author) + '\n');
    writePart(severalBooks_ ? markdownLine(book.hash) + '\n' : "");
}

void MarkdownNotes::add(const Note& note) {
    writePart(markdownParagraphs(note.getText(), "> "));
    const std::string image = note.getImage();
    const std::string link = pictures_.add(title_, image);
    writePart(link.empty() ? "" : "![picture](" + link + ")\n");
    writePart(markdownParagraphs(note.getNote(), ""));
    writePart(lastLine(note, !image.empty() && link.empty()) + '\n');
}

void MarkdownNotes::writePart(const std::string& text) {
    if (!text.empty()) {
        out_ << separator_ << text;
        separator_ = "\n";
    }
}

std::unique_ptr<BookListing> listBooks(std::ostream& out) {
    return std::make_unique<MarkdownBooks>(out);
}

std::unique_ptr<NoteListing> listNotes(std::ostream& out,
                                       const NoteListingOptions& options) {
    return std::make_unique<MarkdownNotes>(out, options);
}

}  // namespace

const ListingFormat kMarkdownFormat = {"markdown", listBooks, listNotes};
