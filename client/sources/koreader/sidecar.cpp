#include "client/sources/koreader/sidecar.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

#include "client/files/whole_file.h"
#include "client/sources/content/book_shelf.h"
#include "client/sources/koreader/lua.h"
#include "client/sources/koreader/sidecar_entry.h"
#include "client/text/affixes.h"
#include "client/text/iso_time.h"
#include "client/text/line_breaks.h"
#include "client/text/numbers.h"

namespace client {

namespace fs = std::filesystem;

namespace {

// Returns the book's name: of "Emma.sdr/metadata.epub.lua", or of "Emma.annotations.lua".
std::string nameIn(const fs::path& path) {
    const fs::path folder = path.parent_path().filename();
    const fs::path file = path.stem();
    return (folder.extension() == ".sdr"         ? folder.stem()
            : file.extension() == ".annotations" ? file.stem()
                                                 : file)
        .string();
}

// Returns the text of the book, without what stands for none.
std::string textOfBook(const JsonValue& sidecar, const char* name) {
    for (const char* part : {"doc_props", "stats"}) {
        const std::string_view text = textIn(memberOf(memberOf(sidecar, part), name));
        if (!text.empty() && text != "N/A") {
            return std::string(text);
        }
    }
    return {};
}

// Returns whether the comment ends with the time of a bookmark that has no comment:
// "Page 12 the text @ 2023-05-19 23:42:17".
bool isMadeUp(std::string_view comment) {
    constexpr std::size_t kTimeLength = 19;
    const std::size_t mark = comment.rfind("@ ");
    return mark != std::string_view::npos && comment.size() - mark == 2 + kTimeLength &&
           parseIsoTime(comment.substr(mark + 2)).has_value();
}

using Entries = std::vector<SidecarEntry>;

// Returns the entries of a list, and reports those without a position.
Entries entriesIn(const JsonValue& list, const std::string& name, const SidecarTexts& texts,
                  SkippedRecords& skipped, std::optional<double> page = {}) {
    Entries entries;
    for (const auto& [number, json] : numberedIn(list)) {
        if (auto entry = parseEntry(*json, texts, page)) {
            entries.push_back(std::move(*entry));
        } else {
            skipped.add(name + '[' + decimal(number) + "]: no position");
        }
    }
    return entries;
}

// Returns what a passage and its bookmark may share, the surest first.
std::vector<std::string> keysOf(const SidecarEntry& entry) {
    std::vector<std::string> keys;
    if (!entry.datetime.empty()) {
        keys = {entry.datetime + entry.position, entry.datetime};
    }
    if (entry.isPassage) {
        keys.push_back(entry.position);
    }
    return keys;
}

// The passages of an old sidecar, to which bookmarks are added.
class OldEntries {
public:
    void addPassage(SidecarEntry passage);

    // Takes the bookmark's comment for that of its passage.
    void addBookmark(SidecarEntry bookmark);

    Entries take() { return std::move(entries_); }

private:
    SidecarEntry* passageOf(const SidecarEntry& bookmark);

    Entries entries_;
    std::unordered_map<std::string, std::size_t> passages_;
};

void OldEntries::addPassage(SidecarEntry passage) {
    for (const std::string& key : keysOf(passage)) {
        passages_.emplace(key, entries_.size());
    }
    entries_.push_back(std::move(passage));
}

SidecarEntry* OldEntries::passageOf(const SidecarEntry& bookmark) {
    for (const std::string& key : keysOf(bookmark)) {
        const auto found = passages_.find(key);
        if (found != passages_.end()) {
            return &entries_[found->second];
        }
    }
    return nullptr;
}

void OldEntries::addBookmark(SidecarEntry bookmark) {
    std::string& comment = bookmark.note.comment;
    if (isMadeUp(comment)) {
        comment.clear();
    }
    SidecarEntry* const passage = passageOf(bookmark);
    if (passage == nullptr || !(comment.empty() || passage->note.comment.empty())) {
        entries_.push_back(std::move(bookmark));
    } else if (!comment.empty()) {
        passage->note.comment = std::move(comment);
    }
}

Entries oldEntriesIn(const JsonValue& sidecar, SkippedRecords& skipped) {
    OldEntries entries;
    for (const auto& [page, list] : numberedIn(memberOf(sidecar, "highlight"))) {
        const std::string name = "highlight[" + decimal(page) + ']';
        for (SidecarEntry& entry : entriesIn(*list, name, {"text", ""}, skipped, page)) {
            entries.addPassage(std::move(entry));
        }
    }
    for (SidecarEntry& entry : entriesIn(memberOf(sidecar, "bookmarks"), "bookmarks",
                                         {"notes", "text"}, skipped)) {
        entries.addBookmark(std::move(entry));
    }
    return entries.take();
}

}  // namespace

bool isSidecar(std::string_view start) {
    std::string_view text = withoutLuaSpace(withoutByteOrderMark(start));
    text = withoutLuaSpace(withoutPrefix(text, "return"));
    constexpr std::string_view kKeys[] = {"[\"annotations\"]", "[\"highlight\"]",
                                          "[\"bookmarks\"]", "[\"doc_props\"]"};
    return startsWith(text, "{") && startsWith(withoutLuaSpace(text.substr(1)), "[") &&
           std::any_of(std::begin(kKeys), std::end(kKeys), [text](std::string_view key) {
               return text.find(key) != std::string_view::npos;
           });
}

SourceContent readSidecar(const std::string& path) {
    const JsonDocument sidecar = parseLua(readFile(path), path);
    const JsonValue& list = memberOf(sidecar, "annotations");
    const std::string ownTitle = textOfBook(sidecar, "title");
    const std::string title = ownTitle.empty() ? nameIn(path) : ownTitle;
    constexpr std::string_view kSpaces[] = {"\n", " "};
    const std::string authors = textOfBook(sidecar, "authors");
    const std::string author = replaced(std::string(trimmed(authors, kSpaces)), "\n", "; ");
    SourceContent content;
    BookShelf shelf;
    for (SidecarEntry& entry :
         numberedIn(list).empty()
             ? oldEntriesIn(sidecar, content.skipped)
             : entriesIn(list, "annotations", {"text", "note"}, content.skipped)) {
        shelf.book(title, author)
            .add(std::move(entry.note), {entry.position, entry.datetime});
    }
    content.books = shelf.take();
    return content;
}

}  // namespace client
