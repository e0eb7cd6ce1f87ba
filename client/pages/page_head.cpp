#include "client/pages/page_head.h"

#include <optional>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "files/input_file.h"

namespace client {
namespace {

constexpr std::string_view kDumpStart =
    R"(<script type="application/x-veloran-dbdump" book_hash=")";
constexpr std::size_t kMaxBeforeDump = std::size_t{16} << 20;

// The file up to `mark` and at least a block more, or `most` bytes of it.
std::string readPast(const std::string& path, std::string_view mark, std::size_t most) {
    host::InputFile file(path);
    std::vector<char> block(65536);
    std::string text;
    bool isPast = false;
    while (!isPast && text.size() < most) {
        isPast = text.find(mark, text.size() -
                                     std::min(text.size(), block.size() + mark.size())) !=
                 std::string::npos;
        const std::size_t size = file.read(block.data(), block.size());
        text.append(block.data(), size);
        isPast = isPast || size == 0;
    }
    return text;
}

// Takes parts of a text, from its front to its end.
class Scanner {
public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    // What stands between the next `start` and the next `end` after it.
    std::optional<std::string> next(std::string_view start, std::string_view end) {
        const std::size_t from = rest_.find(start);
        const std::size_t to =
            from == std::string_view::npos ? from : rest_.find(end, from + start.size());
        if (to == std::string_view::npos) {
            return std::nullopt;
        }
        const std::string found(
            rest_.substr(from + start.size(), to - from - start.size()));
        rest_.remove_prefix(to + end.size());
        return found;
    }

private:
    std::string_view rest_;
};

std::string withoutDate(const std::string& heading) {
    constexpr std::string_view kDate = "2026-03-07 09:05:01 - ";
    return heading.substr(std::min(heading.size(), kDate.size()));
}

PageHead headIn(std::string_view text) {
    Scanner scanner(text);
    const auto style = scanner.next(
        "<style type=\"text/css\"><!--/*--><![CDATA[/*><!--*/\n", "\n/*]]>*/--></style>");
    const auto hash = scanner.next(kDumpStart, "\">");
    const auto dump = scanner.next("", "</script>");
    const auto heading = scanner.next("<h1>", "</h1>");
    if (!style || !hash || !dump || !heading) {
        return {};
    }
    return {*style, *dump, withoutDate(*heading),
            scanner.next("<span>", "</span>").value_or("")};
}

}  // namespace

PageHead readPageHead(const std::string& path) {
    constexpr std::string_view kFirstNote = "\n    <div id=\"";
    try {
        const std::string text = readPast(path, kFirstNote, std::string::npos);
        return headIn(std::string_view(text).substr(0, text.find(kFirstNote)));
    } catch (const std::runtime_error&) {
        return {};
    }
}

std::string bookHashIn(const std::string& path) {
    try {
        const std::string text = readPast(path, kDumpStart, kMaxBeforeDump);
        return Scanner(text).next(kDumpStart, "\">").value_or("");
    } catch (const std::runtime_error&) {
        return {};
    }
}

}  // namespace client
