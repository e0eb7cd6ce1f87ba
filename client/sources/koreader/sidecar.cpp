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
#include "client/sources/koreader/lua_literals.h"
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
    const std::size_t mark = comment.rfind("@ ");
    return mark != comment.npos && parseIsoTime(comment.substr(mark + 2)).has_value();
}

// Reads the notes of one sidecar onto a shelf.
class Reader {
public:
    Reader(const JsonValue& sidecar, const std::string& path);

    SourceContent read();

private:
    // Calls `visit` with each entry of a list, and reports those without a position.
    template <class Visit>
    void eachEntry(const JsonValue& list, const std::string& name,
                   const SidecarTexts& texts, std::optional<double> page,
                   const Visit& visit);
    void addOldLists();
    void add(const SidecarEntry& entry);

    const JsonValue& sidecar_;
    std::string title_;
    std::string author_;
    BookShelf shelf_;
    SourceContent content_;
};

Reader::Reader(const JsonValue& sidecar, const std::string& path)
    : sidecar_(sidecar),
      title_(textOfBook(sidecar, "title")),
      author_(replaced(textOfBook(sidecar, "authors"), "\n", "; ")) {
    title_ = title_.empty() ? nameIn(path) : title_;
}

template <class Visit>
void Reader::eachEntry(const JsonValue& list, const std::string& name,
                       const SidecarTexts& texts, std::optional<double> page,
                       const Visit& visit) {
    for (const auto& [number, json] : numberedIn(list)) {
        if (auto entry = parseEntry(*json, texts, page)) {
            visit(*entry);
        } else {
            content_.skipped.add(name + '[' + decimal(number) + "]: no position");
        }
    }
}

void Reader::add(const SidecarEntry& entry) {
    shelf_.book(title_, author_).add(entry.note, {entry.position, entry.datetime});
}

SourceContent Reader::read() {
    const JsonValue& annotations = memberOf(sidecar_, "annotations");
    if (annotations.IsNull()) {
        addOldLists();
    }
    eachEntry(annotations, "annotations", {"text", "note"}, std::nullopt,
              [this](const SidecarEntry& entry) { add(entry); });
    content_.books = shelf_.take();
    return std::move(content_);
}

// Finds the bookmarks of passages, which share a time or a position.
class Bookmarks {
public:
    void add(SidecarEntry& entry);

    // Removes the passage's bookmark, and returns its comment.
    std::string take(const SidecarEntry& passage);

    // Returns the bookmarks that were not taken.
    const std::vector<std::optional<SidecarEntry>>& others() const { return entries_; }

private:
    std::vector<std::optional<SidecarEntry>> entries_;
    std::unordered_map<std::string, std::size_t> indices_;
};

void Bookmarks::add(SidecarEntry& entry) {
    if (isMadeUp(entry.note.comment)) {
        entry.note.comment.clear();
    }
    if (!entry.datetime.empty()) {
        indices_.emplace(entry.datetime, entries_.size());
    }
    if (entry.isPassage) {
        indices_.emplace(entry.position, entries_.size());
    }
    entries_.emplace_back(std::move(entry));
}

std::string Bookmarks::take(const SidecarEntry& passage) {
    for (const std::string& key : {passage.datetime, passage.position}) {
        const auto found = indices_.find(key);
        if (found != indices_.end() && entries_[found->second]) {
            return std::exchange(entries_[found->second], std::nullopt)->note.comment;
        }
    }
    return {};
}

void Reader::addOldLists() {
    Bookmarks bookmarks;
    eachEntry(memberOf(sidecar_, "bookmarks"), "bookmarks", {"notes", "text"}, std::nullopt,
              [&](SidecarEntry& entry) { bookmarks.add(entry); });
    for (const auto& [page, list] : numberedIn(memberOf(sidecar_, "highlight"))) {
        eachEntry(*list, "highlight[" + decimal(page) + ']', {"text", ""}, page,
                  [&](SidecarEntry& passage) {
                      passage.note.comment = bookmarks.take(passage);
                      add(passage);
                  });
    }
    for (const auto& bookmark : bookmarks.others()) {
        if (bookmark) {
            add(*bookmark);
        }
    }
}

}  // namespace

bool isSidecar(std::string_view start) {
    std::string_view text = withoutLuaSpace(withoutByteOrderMark(start));
    text = withoutLuaSpace(withoutPrefix(text, "return"));
    constexpr std::string_view kKeys[] = {"[\"annotations\"]", "[\"highlight\"]",
                                          "[\"bookmarks\"]", "[\"doc_props\"]"};
    return startsWith(text, "{") && startsWith(withoutLuaSpace(text.substr(1)), "[") &&
           std::any_of(std::begin(kKeys), std::end(kKeys), [text](std::string_view key) {
               return text.find(key) != text.npos;
           });
}

SourceContent readSidecar(const std::string& path) {
    std::string text = readFile(path);
    const JsonDocument sidecar = parseLua(text, path);
    return Reader(sidecar, path).read();
}

}  // namespace client
