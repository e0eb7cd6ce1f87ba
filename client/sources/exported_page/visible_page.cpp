#include "client/sources/exported_page/visible_page.h"

#include <optional>
#include <utility>

#include "client/sources/exported_page/html_tokens.h"
#include "client/sources/exported_page/shown_text.h"
#include "client/text/affixes.h"
#include "client/text/numbers.h"
#include "dump/format.h"
#include "text/base64.h"

namespace client {
namespace {

using Kind = HtmlToken::Kind;

// Returns NAME of "bookmark bm-color-NAME".
std::string colorIn(const std::string& blockClass) {
    constexpr std::string_view kPrefix = "bm-color-";
    const std::size_t at = blockClass.find(kPrefix);
    const std::string color =
        at == std::string::npos ? "" : blockClass.substr(at + kPrefix.size());
    return color == "note" ? "" : color;
}

std::optional<double> pageLabelled(const std::string& label) {
    const auto page = parseNumber<int>(label);
    return page ? std::optional<double>(*page) : std::nullopt;
}

// Reads the page. A note ends where the next one begins.
class Reader {
public:
    VisiblePage read(std::string_view html);

private:
    enum class Target { None, Heading, Author, Page, Text, Comment };

    void start(const HtmlToken& tag);
    void end(const HtmlToken& tag);
    void startBlock(const HtmlToken& tag);
    void startParagraph(const HtmlToken& tag);
    void takePicture(const std::string& source);
    void begin(Target target);
    void finish();
    bool isInNote() const { return !page_.notes.empty(); }
    bool hasParagraphs() const {
        return target_ == Target::Text || target_ == Target::Comment;
    }

    VisiblePage page_;
    Target target_ = Target::None;  // of the next text
    bool isInParagraph_ = false;
    int paragraphs_ = 0;
    ShownText text_;
};

VisiblePage Reader::read(std::string_view html) {
    HtmlTokens tokens(html);
    for (HtmlToken token; tokens.next(token);) {
        if (token.kind == Kind::Start) {
            start(token);
        } else if (token.kind == Kind::End) {
            end(token);
        } else if (target_ != Target::None && (!hasParagraphs() || isInParagraph_)) {
            text_.add(token.text);
        }
    }
    finish();
    return std::move(page_);
}

void Reader::start(const HtmlToken& tag) {
    if (tag.text == "div") {
        startBlock(tag);
    } else if (tag.text == "p") {
        startParagraph(tag);
    } else if (tag.text == "br") {
        text_.breakLine();
    } else if (tag.text == "img" && isInNote()) {
        takePicture(tag.attribute("src"));
    } else if (tag.text == "h1" && !isInNote()) {
        begin(Target::Heading);
    } else if (tag.text == "span" && !isInNote()) {
        begin(Target::Author);
    } else if (tag.text == "script" && tag.attribute("type") == host::kDumpMediaType) {
        page_.bookHash = tag.attribute("book_hash");
    }
}

void Reader::end(const HtmlToken& tag) {
    if (tag.text == "p") {
        isInParagraph_ = false;
    }
    if (tag.text == "div" || tag.text == "h1" || tag.text == "span" ||
        (tag.text == "p" && !hasParagraphs())) {
        finish();
    }
}

void Reader::startBlock(const HtmlToken& tag) {
    const std::string blockClass = tag.attribute("class");
    if (startsWith(blockClass, "bookmark ") && tag.hasAttribute("id")) {
        finish();
        Note& note = page_.notes.emplace_back();
        note.uuid = tag.attribute("id");
        note.color = colorIn(blockClass);
    } else if (blockClass == "bm-text" && isInNote()) {
        begin(Target::Text);
    } else if (blockClass == "bm-note" && isInNote()) {
        begin(Target::Comment);
    }
}

void Reader::startParagraph(const HtmlToken& tag) {
    if (tag.attribute("class") == "bm-page" && isInNote()) {
        begin(Target::Page);
    } else if (hasParagraphs()) {
        isInParagraph_ = true;
        if (++paragraphs_ > 1) {
            text_.breakParagraph();
        }
    }
}

void Reader::takePicture(const std::string& source) {
    constexpr std::string_view kEncoding = ";base64,";
    const std::size_t at = source.find(kEncoding);
    const std::string_view base64 =
        at == std::string::npos ? "-"
                                : std::string_view(source).substr(at + kEncoding.size());
    if (auto picture = host::decodeBase64(base64)) {
        page_.notes.back().picture = std::move(*picture);
    } else {
        page_.unreadable.push_back(page_.notes.back().uuid);
    }
}

void Reader::begin(Target target) {
    finish();
    target_ = target;
}

// Ends the current text. Targets within a note are only set inside one.
void Reader::finish() {
    const std::string text = text_.take();
    const Target target = std::exchange(target_, Target::None);
    if (target == Target::Heading) {
        page_.heading = text;
    } else if (target == Target::Author) {
        page_.author = text;
    } else if (target != Target::None) {
        Note& note = page_.notes.back();
        if (target == Target::Page) {
            note.place.page = pageLabelled(text);
        } else {
            (target == Target::Text ? note.text : note.comment) = text;
        }
    }
    isInParagraph_ = false;
    paragraphs_ = 0;
}

}  // namespace

VisiblePage readVisiblePage(std::string_view html) { return Reader().read(html); }

}  // namespace client
