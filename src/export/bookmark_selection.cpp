#include <cstdint>
#include <deque>

#include "export/merge_sort.h"
#include "export/notes_exporter_impl.h"

namespace veloran {

namespace {

using utilities::Note;

// What the order looks at, side by side and apart from the notes: sorting would fetch each
// of them from memory again and again.
struct SortKey {
    std::uint32_t page;
    long long noteId;
    const Note* note;
};

// Page numbers wrap into unsigned ones: a note on page -1 precedes the notes without a
// page, and one on page -2 follows all others.
std::uint32_t pageKey(std::optional<int> page) {
    return page ? static_cast<std::uint32_t>(*page) + 1 : 1;
}

bool isSelected(const Note& note, const std::set<unsigned long long>& ids) {
    return ids.empty() || ids.count(note.noteId) != 0;
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
    std::deque<Note> notes;
    std::vector<SortKey> keys;
    for (const auto& key : readerDb_.getBookNotesHashUUIDs(bookHash, true)) {
        Note note = readerDb_.getNote(key.first);
        if (isSelected(note, ids)) {
            const std::uint32_t page = pageKey(getPageNumber(note));
            notes.push_back(std::move(note));
            keys.push_back(
                {page, static_cast<long long>(notes.back().noteId), &notes.back()});
        }
    }
    sort(keys, before);
    for (const SortKey& key : keys) {
        writeBookmark(writer, *key.note);
    }
    return 0;
}

}  // namespace veloran
