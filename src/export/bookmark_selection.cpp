#include <algorithm>
#include <cstdint>

#include "export/merge_sort.h"
#include "export/notes_exporter_impl.h"

namespace veloran {

namespace {

using utilities::Note;

// A sort key. Keys are stored apart from the notes, so that sorting stays in the cache.
struct SortKey {
    std::uint32_t page;
    long long noteId;
    std::size_t index;  // of the note among the selected ones
};

// Returns the page number plus 1, unsigned, so that page -1 sorts before notes without a
// page, and page -2 after all others.
std::uint32_t pageKey(std::optional<int> page) {
    return page ? static_cast<std::uint32_t>(*page) + 1 : 1;
}

bool isSelected(const Note& note, const std::set<unsigned long long>& ids) {
    return ids.empty() || ids.count(note.noteId) != 0;
}

// Moves the selected notes into `notes`, and returns their keys.
std::vector<SortKey> select(utilities::ReaderDbManager& readerDb,
                            const std::string& bookHash,
                            const std::set<unsigned long long>& ids,
                            std::vector<Note>& notes) {
    const auto noteKeys = readerDb.getBookNotesHashUUIDs(bookHash, true);
    const std::size_t most =
        ids.empty() ? noteKeys.size() : std::min(ids.size(), noteKeys.size());
    std::vector<SortKey> keys;
    keys.reserve(most);
    notes.reserve(most);
    for (const auto& noteKey : noteKeys) {
        Note note = readerDb.getNote(noteKey.first);
        if (isSelected(note, ids)) {
            const std::uint32_t page = pageKey(NotesExporterImpl::getPageNumber(note));
            keys.push_back({page, static_cast<long long>(note.noteId), notes.size()});
            notes.push_back(std::move(note));
        }
    }
    return keys;
}

void sort(std::vector<SortKey>& keys, const NoteOrder& before) {
    if (before) {
        const NoteOrder copy = before;  // the caller's own callable is never invoked
        mergeSort(keys, [&copy](const SortKey& a, const SortKey& b) {
            return copy(a.noteId, b.noteId);
        });
    } else {
        mergeSort(keys, [](const SortKey& a, const SortKey& b) { return a.page < b.page; });
    }
}

}  // namespace

int NotesExporterImpl::writeBookmarks(Writer& writer, const std::string& bookHash,
                                      const std::set<unsigned long long>& ids,
                                      const NoteOrder& before) {
    std::vector<Note> notes;
    std::vector<SortKey> keys = select(readerDb_, bookHash, ids, notes);
    sort(keys, before);
    for (const SortKey& key : keys) {
        const Note note = std::move(notes[key.index]);  // freed while it is in the cache
        writeBookmark(writer, note);
    }
    return 0;
}

}  // namespace veloran
