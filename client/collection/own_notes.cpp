#include "client/collection/own_notes.h"

#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "client/collection/note_tags.h"
#include "client/collection/position.h"
#include "client/files/digest.h"
#include "client/text/line_breaks.h"
#include "store/note_tags.h"

namespace client {
namespace {

using host::NoteRecord;
using host::TagRecord;

using NoteIds = std::map<std::string, std::int64_t>;  // by uuid
using Digests = std::unordered_set<DigestValue, DigestValue::Hash>;

DigestValue digestOf(const std::string& uuid, const TagRecord& tag,
                     std::string_view value) {
    Digest digest;
    digest.addText(uuid);
    digest.addText(std::to_string(tag.tag));
    digest.addText(tag.text);
    digest.addText(value);
    return digest.value();
}

// Calls `visit` with the digest of the tag's value, or of each part of a position, so that
// one that an earlier version stored with fewer parts still counts as given. Returns false
// at the first one for which `visit` does.
template <class Visit>
bool eachValue(const std::string& uuid, const TagRecord& tag, const Visit& visit) {
    const std::string position = positionIn(tag);
    const std::string& json = tag.json ? *tag.json : position;
    const auto parts =
        position.empty() ? std::vector<std::string_view>{json} : partsOf(position);
    return std::all_of(parts.begin(), parts.end(), [&](std::string_view part) {
        return visit(digestOf(uuid, tag, part));
    });
}

// Calls `visit` with the digest of each paragraph. Returns false at the first one for which
// `visit` does.
template <class Visit>
bool eachParagraph(std::string_view comment, const Visit& visit) {
    for (bool isLast = false; !isLast;) {
        const std::size_t length = comment.find(kParagraphEnd);
        isLast = length == std::string_view::npos;
        if (!visit(DigestValue::of(comment.substr(0, length)))) {
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
        return includeComment(note) &&
               std::all_of(note.tags.begin(), note.tags.end(), [&](const TagRecord& tag) {
                   return tag.tag == host::kCommentTag ||
                          eachValue(note.uuid, tag, [this](const DigestValue& value) {
                              return values_.count(value) > 0;
                          });
               });
    }

    bool includeComment(const NoteRecord& note) const {
        return std::all_of(note.tags.begin(), note.tags.end(), [&](const TagRecord& tag) {
            return tag.tag != host::kCommentTag ||
                   eachParagraph(tag.text, [&](const DigestValue& paragraph) {
                       return paragraphs_.count(paragraph) > 0;
                   });
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
                eachValue(record.uuid, tag, [this](const DigestValue& value) {
                    values_.insert(value);
                    return true;
                });
            }
        }
    }

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
    NoteIds obsolete;
    NoteIds changed;
};

Affected affectedBy(const IncomingBook& book, std::int64_t bookId,
                    host::ReaderStore& store) {
    Affected affected;
    for (const Note& note : book.replaced) {
        if (const auto id = store.findNote(bookId, note.uuid)) {
            affected.obsolete.emplace(note.uuid, *id);
        }
    }
    for (Note note : book.notes) {
        affected.obsolete.erase(note.uuid);
        const auto id = store.findNote(bookId, note.uuid);
        const std::string uuid = note.uuid;
        if (id && !isEqual(store.note(*id).value(), toRecord(std::move(note)))) {
            affected.changed.emplace(uuid, *id);
        }
    }
    return affected;
}

// Returns the paragraphs that may not reach the collection with their notes, because
// something else has commented on these.
Digests withheldParagraphs(const IncomingBook& book, const NoteIds& changed,
                           const GivenValues& given, host::ReaderStore& store) {
    Digests withheld;
    for (const Note& note : book.notes) {
        const auto known = changed.find(note.uuid);
        if (known != changed.end() &&
            !given.includeComment(store.note(known->second).value())) {
            eachParagraph(note.comment, [&](const DigestValue& paragraph) {
                withheld.insert(paragraph);
                return true;
            });
        }
    }
    return withheld;
}

bool hasCommentIn(const Digests& paragraphs, const NoteRecord& note) {
    return std::any_of(note.tags.begin(), note.tags.end(), [&](const TagRecord& tag) {
        return tag.tag == host::kCommentTag &&
               !eachParagraph(tag.text, [&](const DigestValue& paragraph) {
                   return paragraphs.count(paragraph) == 0;
               });
    });
}

}  // namespace

int removeOwnNotes(const IncomingBook& book, std::int64_t bookId,
                   host::ReaderStore& store) {
    const auto [obsolete, changed] = affectedBy(book, bookId, store);
    NoteIds all = obsolete;
    all.insert(changed.begin(), changed.end());
    if (all.empty()) {
        return 0;
    }
    const GivenValues given(book, all);
    const Digests withheld = withheldParagraphs(book, changed, given, store);
    int removed = 0;
    for (const auto& [uuid, id] : all) {
        const NoteRecord note = store.note(id).value();
        if (!given.include(note)) {
            continue;
        }
        if (obsolete.count(uuid) == 0) {
            store.removeTags(id);
        } else if (!hasCommentIn(withheld, note)) {
            store.removeNote(id);
            ++removed;
        }
    }
    return removed;
}

}  // namespace client
