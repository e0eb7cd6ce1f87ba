#include "client/sources/clippings/clippings_file.h"

#include <cstddef>
#include <optional>
#include <utility>

#include "client/files/whole_file.h"
#include "client/sources/clippings/clipping.h"
#include "client/sources/clippings/clipping_notes.h"
#include "client/sources/clippings/records.h"
#include "client/text/encoding.h"
#include "client/text/line_breaks.h"
#include "text/utf8.h"

namespace client {
namespace {

// Returns the text as UTF-8 if it is UTF-16, with a line feed at the end of each line.
std::string decodedFile(std::string text) {
    return withLineFeedEnds(utf16AsUtf8(std::move(text)));
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
    const std::string start = path + ": line " + std::to_string(first_);
    return count_ == 1 ? start + " is not UTF-8 and was read as Windows-1252\n"
                       : start + " and " + std::to_string(count_ - 1) +
                             " more are not UTF-8 and were read as Windows-1252\n";
}

std::string whyUnreadable(const Records& records, const std::optional<Clipping>& clipping) {
    return !records.hasSeparator() ? "the record has no end, as if the file were cut"
           : !clipping             ? "its first two lines are not those of a record"
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
        if (records.hasSeparator() && parseClipping(records.text()) &&
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
        if (records.hasSeparator() && clipping && !clipping->hasLimitMessage) {
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
