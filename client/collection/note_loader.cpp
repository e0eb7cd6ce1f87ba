#include "client/collection/note_loader.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "client/collection/note_tags.h"
#include "client/collection/own_notes.h"
#include "client/collection/position.h"
#include "client/text/control_characters.h"
#include "store/note_tags.h"

namespace client {
namespace {

using host::NoteRecord;
using host::TagRecord;

// The tags must be in the order of their numbers, as ReaderStore::note() returns them.
const TagRecord* findTag(const NoteRecord& note, std::int32_t tag) {
    const auto found = std::lower_bound(
        note.tags.begin(), note.tags.end(), tag,
        [](const TagRecord& one, std::int32_t number) { return one.tag < number; });
    return found == note.tags.end() || found->tag != tag ? nullptr : &*found;
}

bool isPosition(const TagRecord& tag) {
    return tag.tag == host::kAnchorTag || tag.tag == host::kRangeTag;
}

// Returns whether `complete` has all parts of the other position; false for other tags.
bool hasAllPartsOf(const TagRecord& complete, const TagRecord& other) {
    const std::string position = positionIn(complete);
    const std::string part = positionIn(other);
    const auto parts = partsOf(position);
    const auto wanted = partsOf(part);
    return !position.empty() && !part.empty() &&
           std::all_of(wanted.begin(), wanted.end(), [&](std::string_view one) {
               return std::find(parts.begin(), parts.end(), one) != parts.end();
           });
}

bool isEqual(const TagRecord& present, const TagRecord& loaded) {
    return (present.text == loaded.text && present.json == loaded.json) ||
           hasAllPartsOf(present, loaded);
}

bool differs(const NoteRecord& present, const NoteRecord& loaded) {
    return std::any_of(loaded.tags.begin(), loaded.tags.end(), [&](const TagRecord& tag) {
        const TagRecord* other = findTag(present, tag.tag);
        return other == nullptr || !isEqual(*other, tag);
    });
}

bool isPlaced(const TagRecord* position) {
    const std::string own = position == nullptr ? "" : positionIn(*position);
    return position != nullptr && (own.empty() || isKnown(placeAt(own)));
}

// Removes the tags that the present note has, and a place if it has any. What remains is
// older than every change of the note.
void keepMissing(NoteRecord& loaded, const NoteRecord& present) {
    const bool hasPlace = isPlaced(findTag(present, host::kAnchorTag)) ||
                          isPlaced(findTag(present, host::kRangeTag));
    const auto isPresent = [&](const TagRecord& tag) {
        return isPosition(tag) ? hasPlace : findTag(present, tag.tag) != nullptr;
    };
    loaded.tags.erase(std::remove_if(loaded.tags.begin(), loaded.tags.end(), isPresent),
                      loaded.tags.end());
    for (TagRecord& tag : loaded.tags) {
        tag.timestamp = 0;
    }
}

}  // namespace

void NoteLoader::load(IncomingBook& book) {
    if (book.onKnownNote == OnKnownNote::ReplaceOwn && !store_.noteIds(bookId_).empty()) {
        result_.changed += removeOwnNotes(book, bookId_, store_);
    }
    for (NoteRecord& record : std::exchange(book.records, {})) {
        merge(std::exchange(record, {}));
    }
    for (Note note : book.notes) {
        loadNote(book, std::move(note));
    }
}

void NoteLoader::loadNote(const IncomingBook& book, Note note) {
    note.uuid = knownUuid(book, note.uuid);
    NoteRecord record = toRecord(std::move(note));
    if (book.onKnownNote == OnKnownNote::AddMissing) {
        if (const auto present = known(record.uuid)) {
            keepMissing(record, *present);
        }
    }
    merge(record);
}

void NoteLoader::merge(const NoteRecord& note) {
    host::MergedNote merged = store_.mergeNote(bookId_, note);
    if (!merged.complete) {
        const NoteRecord present = store_.note(merged.id).value();
        const bool isCompleted = completePosition(merged.id, present, note);
        merged.changed |= isCompleted;
        if (differs(isCompleted ? store_.note(merged.id).value() : present, note)) {
            result_.kept.add(oneLine(note.uuid) + " of " + oneLine(book_.hash) + "  \"" +
                             oneLine(book_.title) + '"');
        }
    }
    result_.changed += merged.changed ? 1 : 0;
}

// Replaces positions of equal age that have only parts of the new ones. Earlier versions of
// this program stored pages alone.
bool NoteLoader::completePosition(std::int64_t id, const NoteRecord& present,
                                  const NoteRecord& loaded) {
    bool isChanged = false;
    for (const TagRecord& tag : loaded.tags) {
        const TagRecord* other = findTag(present, tag.tag);
        if (other != nullptr && other->timestamp == tag.timestamp &&
            other->json != tag.json && hasAllPartsOf(tag, *other)) {
            store_.replaceTag(id, tag);
            isChanged = true;
        }
    }
    return isChanged;
}

std::optional<NoteRecord> NoteLoader::known(const std::string& uuid) {
    const auto id = store_.findNote(bookId_, uuid);
    return id ? store_.note(*id) : std::nullopt;
}

// Returns the uuid under which the collection has the note, or will have it.
std::string NoteLoader::knownUuid(const IncomingBook& book, const std::string& uuid) {
    const auto former = book.formerUuids.find(uuid);
    if (former == book.formerUuids.end() || store_.findNote(bookId_, uuid)) {
        return uuid;
    }
    for (const std::string& candidate : former->second) {
        if (store_.findNote(bookId_, candidate) && keptUuids_.insert(candidate).second) {
            return candidate;
        }
    }
    return uuid;
}

}  // namespace client
