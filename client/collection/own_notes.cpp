#include "client/collection/own_notes.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "client/collection/note_tags.h"
#include "client/files/digest.h"
#include "client/text/line_breaks.h"
#include "store/note_tags.h"

namespace client {
namespace {

using host::NoteRecord;
using host::TagRecord;

using NoteIds = std::map<std::string, std::int64_t>;  // by uuid

DigestValue digestOf(const std::string& uuid, const TagRecord& tag) {
    Digest digest;
    digest.addText(uuid);
    digest.addText(std::to_string(tag.tag));
    digest.addText(tag.text);
    digest.addText(tag.json.value_or(""));
    return digest.value();
}

// Calls `visit` with the digest of each paragraph. Returns false at the first one for which
// `visit` does.
template <class Visit>
bool eachParagraph(std::string_view comment, const Visit& visit) {
    for (bool isLast = false; !isLast;) {
        const std::size_t length = comment.find(kParagraphEnd);
        isLast = length == std::string_view::npos;
        Digest digest;
        digest.add(comment.substr(0, length));
        if (!visit(digest.value())) {
            return false;
        }
        comment.remove_prefix(isLast ? 0 : length + kParagraphEnd.size());
    }
    return true;
}

// The values that a file gives to some notes of a book.
class GivenValues {
public:
    GivenValues(const IncomingBook& book, const NoteIds& ids) {
        for (const PackedNotes* notes : {&book.notes, &book.replaced}) {
            for (Note note : *notes) {
                add(std::move(note), ids);
            }
        }
    }

    bool include(const NoteRecord& note) const {
        return std::all_of(note.tags.begin(), note.tags.end(), [&](const TagRecord& tag) {
            return tag.tag == host::kCommentTag
                       ? eachParagraph(tag.text,
                                       [&](const DigestValue& paragraph) {
                                           return paragraphs_.count(paragraph) > 0;
                                       })
                       : values_.count(digestOf(note.uuid, tag)) > 0;
        });
    }

private:
    void add(Note note, const NoteIds& ids) {
        eachParagraph(note.comment, [this](const DigestValue& paragraph) {
            paragraphs_.insert(paragraph);
            return true;
        });
        if (ids.count(note.uuid) > 0) {
            const NoteRecord record = toRecord(std::move(note));
            for (const TagRecord& tag : record.tags) {
                values_.insert(digestOf(record.uuid, tag));
            }
        }
    }

    using Digests = std::unordered_set<DigestValue, DigestValue::Hash>;
    Digests values_;
    Digests paragraphs_;
};

bool isEqual(const TagRecord& one, const TagRecord& other) {
    return one.tag == other.tag && one.text == other.text && one.json == other.json &&
           one.timestamp == other.timestamp;
}

bool isEqual(const NoteRecord& one, const NoteRecord& other) {
    return std::is_permutation(
        one.tags.begin(), one.tags.end(), other.tags.begin(), other.tags.end(),
        [](const TagRecord& a, const TagRecord& b) { return isEqual(a, b); });
}

// The notes of the collection that a file replaces or changes.
struct Affected {
    NoteIds replaced;
    NoteIds changed;
};

Affected affectedBy(const IncomingBook& book, std::int64_t bookId,
                    host::ReaderStore& store) {
    Affected affected;
    for (const Note& note : book.replaced) {
        if (const auto id = store.findNote(bookId, note.uuid)) {
            affected.replaced.emplace(note.uuid, *id);
        }
    }
    for (Note note : book.notes) {
        affected.replaced.erase(note.uuid);
        const auto id = store.findNote(bookId, note.uuid);
        const std::string uuid = note.uuid;
        if (id && !isEqual(store.note(*id).value(), toRecord(std::move(note)))) {
            affected.changed.emplace(uuid, *id);
        }
    }
    return affected;
}

}  // namespace

int removeOwnNotes(const IncomingBook& book, std::int64_t bookId,
                   host::ReaderStore& store) {
    const auto [replaced, changed] = affectedBy(book, bookId, store);
    NoteIds all = replaced;
    all.insert(changed.begin(), changed.end());
    if (all.empty()) {
        return 0;
    }
    const GivenValues given(book, all);
    int removed = 0;
    for (const auto& [uuid, id] : all) {
        if (!given.include(store.note(id).value())) {
            continue;
        }
        if (replaced.count(uuid) > 0) {
            store.removeNote(id);
            ++removed;
        } else {
            store.removeTags(id);
        }
    }
    return removed;
}

}  // namespace client
