#include "client/sources/clippings/records.h"

#include "client/sources/clippings/clipping.h"
#include "client/sources/clippings/scanning.h"
#include "client/text/affixes.h"
#include "client/text/line_breaks.h"

namespace client {
namespace {

constexpr std::string_view kSeparator = "==========";

bool isSeparator(std::string_view line) { return withoutSpaces(line) == kSeparator; }

}  // namespace

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
// end was joined with another. Then the next line must look like the second line of a
// record, because a passage may contain anything.
std::optional<Records::Boundary> Records::boundaryIn(std::string_view line) const {
    if (isSeparator(line)) {
        return Boundary{0, line.size(), true};
    }
    const bool isJoined = startsWith(line, kSeparator);
    const std::size_t mark = isJoined ? 0 : line.find(kByteOrderMark);
    std::string_view rest = rest_;
    const std::string_view following = takeLine(rest);
    if (mark == std::string_view::npos ||
        !(isJoined ? parseDetails(following).has_value() : isDetails(following))) {
        return std::nullopt;
    }
    return Boundary{mark, isJoined ? kSeparator.size() : mark, isJoined};
}

bool Records::next() {
    skipToRecord();
    firstLine_ = line_;
    text_ = rest_;
    hasSeparator_ = false;
    for (std::size_t length = 0; !rest_.empty(); length = text_.size() - rest_.size()) {
        const std::string_view line = takeLine(rest_);
        const auto boundary = length > 0 ? boundaryIn(line) : std::nullopt;
        if (boundary) {
            hasSeparator_ = boundary->isSeparator;
            rest_ = text_.substr(length + boundary->next);
            text_ = text_.substr(0, length + boundary->end);
            return true;
        }
        ++line_;
    }
    return !text_.empty();
}

}  // namespace client
