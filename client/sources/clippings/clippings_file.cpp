#include "client/sources/clippings/clippings_file.h"

#include <optional>
#include <utility>
#include <vector>

#include "client/files/whole_file.h"
#include "client/sources/clippings/clipping.h"
#include "client/sources/clippings/clipping_notes.h"

namespace client {
namespace {

constexpr std::string_view kEndOfRecord = "==========";

std::string_view withoutEnding(std::string_view line) {
    return line.substr(0, line.find_last_not_of("\r ") + 1);
}

// Iterates over the records of a text.
class Records {
public:
    explicit Records(std::string_view text) : rest_(text) {}

    bool next();
    const std::vector<std::string_view>& lines() const { return lines_; }
    std::size_t firstLine() const { return firstLine_; }
    bool hasEnd() const { return hasEnd_; }

private:
    std::string_view takeLine();

    std::string_view rest_;
    std::vector<std::string_view> lines_;
    std::size_t linesTaken_ = 0;
    std::size_t firstLine_ = 0;
    bool hasEnd_ = false;
};

std::string_view Records::takeLine() {
    const std::size_t length = rest_.find('\n');
    const std::string_view line = rest_.substr(0, length);
    rest_.remove_prefix(length == std::string_view::npos ? rest_.size() : length + 1);
    ++linesTaken_;
    return line;
}

// Skips empty lines before the record.
bool Records::next() {
    lines_.clear();
    hasEnd_ = false;
    while (!rest_.empty() && !hasEnd_) {
        const std::string_view line = withoutEnding(takeLine());
        hasEnd_ = line == kEndOfRecord;
        if (lines_.empty() && !line.empty()) {
            firstLine_ = linesTaken_;
        }
        if (!hasEnd_ && !(lines_.empty() && line.empty())) {
            lines_.push_back(line);
        }
    }
    return hasEnd_ || !lines_.empty();
}

std::string whyUnreadable(const Records& records, const std::optional<Clipping>& clipping) {
    return !records.hasEnd() ? "the record has no end, as if the file were cut"
           : !clipping       ? "neither a title nor what it is of can be read"
                             : "too much of the book was marked for the reader to keep it";
}

}  // namespace

bool isClippings(std::string_view start) {
    Records records(start);
    return records.next() && parseClipping(records.lines()).has_value() &&
           start.find(kEndOfRecord) != std::string_view::npos;
}

SourceContent readClippings(const std::string& path) {
    const std::string text = readFile(path);
    SourceContent content;
    ClippingNotes notes;
    for (Records records(text); records.next();) {
        auto clipping = parseClipping(records.lines());
        if (records.hasEnd() && clipping && !clipping->hasLimitMessage) {
            notes.add(std::move(*clipping));
        } else {
            content.skipped.add("line " + std::to_string(records.firstLine()) + ": " +
                                whyUnreadable(records, clipping));
        }
    }
    content.books = notes.take();
    return content;
}

}  // namespace client
