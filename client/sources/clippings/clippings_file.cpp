#include "client/sources/clippings/clippings_file.h"

#include <cstddef>
#include <optional>
#include <utility>

#include "client/files/whole_file.h"
#include "client/sources/clippings/clipping.h"
#include "client/sources/clippings/clipping_notes.h"
#include "client/sources/clippings/scanning.h"
#include "client/text/affixes.h"
#include "client/text/encoding.h"
#include "client/text/line_breaks.h"
#include "text/utf8.h"

namespace client {
namespace {

constexpr std::string_view kSeparator = "==========";
constexpr std::string_view kByteOrderMark = "\ufeff";

bool isSeparator(std::string_view line) { return withoutSpaces(line) == kSeparator; }

// Returns the text as UTF-8 if it is UTF-16, with a line feed at the end of each line.
std::string decodedFile(std::string text) {
    return withLineFeedEnds(utf16AsUtf8(std::move(text)));
}

// The end of a record and the start of the next one, as offsets in a line.
struct Boundary {
    std::size_t end;
    std::size_t next;
    bool isSeparator;
};

// Iterates over the records of a text.
class Records {
public:
    explicit Records(std::string_view text) : rest_(text) {}

    bool next();
    std::string_view text() const { return text_; }
    std::size_t firstLine() const { return firstLine_; }
    bool hasEnd() const { return hasEnd_; }

private:
    void skipToRecord();
    std::optional<Boundary> boundaryIn(std::string_view line) const;

    std::string_view rest_;
    std::string_view text_;
    std::size_t line_ = 1;  // number of the rest's first line
    std::size_t firstLine_ = 1;
    bool hasEnd_ = false;
};

void Records::skipToRecord() {
    for (std::string_view rest = rest_; !rest.empty(); ++line_) {
        const std::string_view line = takeLine(rest);
        if (!withoutSpaces(line).empty() && !isSeparator(line)) {
            return;
        }
        rest_ = rest;
    }
    rest_ = {};
}

// A record may also start within a line, where a file that is cut or lacks its last line
// end was joined with another. Then the next line must be the second line of a record,
// because a passage may contain anything.
std::optional<Boundary> Records::boundaryIn(std::string_view line) const {
    if (isSeparator(line)) {
        return Boundary{0, line.size(), true};
    }
    const bool hasSeparator = startsWith(line, kSeparator);
    const std::size_t mark = hasSeparator ? 0 : line.find(kByteOrderMark);
    std::string_view rest = rest_;
    if (mark == std::string_view::npos || !isDetails(takeLine(rest))) {
        return std::nullopt;
    }
    return Boundary{mark, hasSeparator ? kSeparator.size() : mark, hasSeparator};
}

bool Records::next() {
    skipToRecord();
    firstLine_ = line_;
    text_ = rest_;
    hasEnd_ = false;
    for (std::size_t length = 0; !rest_.empty(); length = text_.size() - rest_.size()) {
        const std::string_view line = takeLine(rest_);
        const auto boundary = length > 0 ? boundaryIn(line) : std::nullopt;
        if (boundary) {
            hasEnd_ = boundary->isSeparator;
            rest_ = text_.substr(length + boundary->next);
            text_ = text_.substr(0, length + boundary->end);
            return true;
        }
        ++line_;
    }
    return !text_.empty();
}

// The lines that are not UTF-8.
class ForeignLines {
public:
    void addFrom(std::string_view record, std::size_t firstLine);

    // Returns an empty text if there is none.
    std::string remark(const std::string& path) const;

private:
    std::size_t first_ = 0;
    std::size_t count_ = 0;
};

void ForeignLines::addFrom(std::string_view record, std::size_t firstLine) {
    if (host::isUtf8(record)) {
        return;
    }
    for (std::size_t line = firstLine; !record.empty(); ++line) {
        if (!host::isUtf8(takeLine(record))) {
            first_ = count_ == 0 ? line : first_;
            ++count_;
        }
    }
}

std::string ForeignLines::remark(const std::string& path) const {
    if (count_ == 0) {
        return {};
    }
    const std::string lines =
        count_ == 1 ? " is" : " and " + std::to_string(count_ - 1) + " more are";
    return path + ": line " + std::to_string(first_) + lines +
           " not UTF-8 and read as Windows-1252\n";
}

std::string whyUnreadable(const Records& records, const std::optional<Clipping>& clipping) {
    return !records.hasEnd() ? "the record has no end, as if the file were cut"
           : !clipping       ? "neither a title nor what it is of can be read"
                             : "too much of the book was marked for the reader to keep it";
}

}  // namespace

// A record that is not the first must be in a known language, because other texts have
// lines that start with a dash, too.
bool isClippings(std::string_view start) {
    const std::string text = decodedFile(std::string(start));
    Records records(text);
    for (bool isFirst = true; records.next(); isFirst = false) {
        std::string_view details = records.text();
        takeLine(details);
        if (records.hasEnd() && parseClipping(records.text()) &&
            (isFirst || isDetails(takeLine(details)))) {
            return true;
        }
    }
    return false;
}

SourceContent readClippings(const std::string& path) {
    const std::string text = decodedFile(readFile(path));
    SourceContent content;
    ClippingNotes notes;
    ForeignLines foreign;
    for (Records records(text); records.next();) {
        auto clipping = parseClipping(records.text());
        if (records.hasEnd() && clipping && !clipping->hasLimitMessage) {
            foreign.addFrom(records.text(), records.firstLine());
            notes.add(std::move(*clipping));
        } else {
            content.skipped.add("line " + std::to_string(records.firstLine()) + ": " +
                                whyUnreadable(records, clipping));
        }
    }
    content.remark = foreign.remark(path);
    content.books = notes.take();
    return content;
}

}  // namespace client
