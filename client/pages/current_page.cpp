#include "client/pages/current_page.h"

#include <algorithm>
#include <map>
#include <utility>

#include "client/pages/page_head.h"
#include "dump/format.h"
#include "dump/import_result.h"
#include "dump/reader.h"
#include "dump/writer.h"
#include "text/base64.h"
#include "utilities/serialization_utils.h"

namespace client {
namespace {

// As the library writes text into a page.
std::string escaped(const std::string& text) {
    static const std::map<char, const char*> kEntities = {
        {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&apos;"}};
    std::string result;
    for (const char byte : text) {
        const auto entity = kEntities.find(byte);
        result += entity == kEntities.end() ? std::string(1, byte) : entity->second;
    }
    return result;
}

using Tags = std::vector<host::TagRecord>;

// Whether each of the older tags is there, as it was or newer.
bool includesTags(const Tags& tags, const Tags& older) {
    return std::all_of(older.begin(), older.end(), [&](const host::TagRecord& old) {
        return std::any_of(tags.begin(), tags.end(), [&](const host::TagRecord& tag) {
            return tag.tag == old.tag && tag.timestamp >= old.timestamp;
        });
    });
}

bool includesNotes(const host::BookRecord& book, const host::BookRecord& older) {
    std::map<std::string, const Tags*> notes;
    for (const host::NoteRecord& note : book.notes) {
        notes.emplace(note.uuid, &note.tags);
    }
    return std::all_of(older.notes.begin(), older.notes.end(), [&](const auto& old) {
        const auto found = notes.find(old.uuid);
        return found != notes.end() && includesTags(*found->second, old.tags);
    });
}

}  // namespace

CurrentPage::CurrentPage(host::ReaderStore& reader, host::LibraryStore& library,
                         const host::BookEntry& book, std::set<unsigned long long> notes,
                         std::string styleSheet)
    : reader_(reader),
      book_{static_cast<unsigned long long>(book.id)},
      notes_(std::move(notes)),
      styleSheet_(std::move(styleSheet)),
      title_(book.title) {
    using veloran::utilities::SerializationUtils;
    const auto id = library.findBook(SerializationUtils::FromHex(book.fastHash));
    if (const auto known = id ? library.book(*id) : std::nullopt) {
        title_ = known->title;
        author_ = known->author;
    }
}

// A book without a title is named after its file.
bool CurrentPage::isAt(const std::string& path) const {
    const PageHead page = readPageHead(path);
    return page.styleSheet == styleSheet_ && page.author == escaped(author_) &&
           (title_.empty() || page.heading == escaped(title_)) && hasRecords(page);
}

bool CurrentPage::hasRecords(const PageHead& page) const {
    auto dump = host::decodeBase64(page.dump);
    try {
        return dump &&
               host::isCurrentDump(reader_, book_, notes_, host::Payload{std::move(*dump)});
    } catch (const host::DumpError&) {
        return false;
    }
}

bool CurrentPage::includes(const std::string& path) const {
    try {
        std::string dump;
        host::writeDump(reader_, book_, notes_, dump);
        const auto now = host::readPayload({std::move(dump)});
        const auto older = host::readDump(path);
        return older.size() == 1 && older[0].fastHash == now.at(0).fastHash &&
               includesNotes(now[0], older[0]);
    } catch (const host::DumpError&) {
        return false;
    }
}

}  // namespace client
