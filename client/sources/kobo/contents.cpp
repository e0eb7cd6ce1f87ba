#include "client/sources/kobo/contents.h"

#include "client/sources/kobo/rows.h"

namespace client {
namespace {

// Types of content.
constexpr int kBook = 6;
constexpr int kChapter = 9;
constexpr int kHeading = 899;  // in the table of contents

}  // namespace

KoboContents::KoboContents(SQLite::Database& database, ReadLimit& limit) {
    KoboRows rows(database, "content",
                  {"ContentType", "ContentID", "VolumeIndex", "Title", "Attribution"},
                  limit);
    while (rows.next()) {
        const int type = rows.column(0).getInt();
        if (type == kBook || type == kChapter || type == kHeading) {
            const std::string id = rows.column(1).getString();
            addChapter(id, {rows.column(2).getInt64(), type});
            if (type == kBook) {
                books_[id] = {rows.column(3).getString(), rows.column(4).getString()};
            }
        }
    }
}

// Prefers the row of the chapter's own file to its heading.
void KoboContents::addChapter(const std::string& id, const Chapter& chapter) {
    const auto [known, isNew] = chapters_.try_emplace(id, chapter);
    if (!isNew && chapter.type <= known->second.type) {
        known->second = chapter;
    }
}

const KoboBook* KoboContents::book(const std::string& id) const {
    const auto found = books_.find(id);
    return found == books_.end() ? nullptr : &found->second;
}

std::int64_t KoboContents::chapterIndex(const std::string& id) const {
    auto found = chapters_.find(id);
    if (found == chapters_.end()) {
        found = chapters_.find(id.substr(0, id.find('#')));
    }
    return found == chapters_.end() ? 0 : found->second.index;
}

}  // namespace client
