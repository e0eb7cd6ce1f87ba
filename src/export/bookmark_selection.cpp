#include <cstdint>

#include "export/merge_sort.h"
#include "export/notes_exporter_impl.h"

namespace veloran {

namespace {

using utilities::Note;

struct SortEntry {
    std::uint32_t pageKey;
    Note note;
};

// Page numbers wrap into unsigned ones: a note on page -1 precedes the notes without a
// page, and one on page -2 follows all others.
std::uint32_t pageKey(const std::string& label) {
    return label.empty() ? 1 : static_cast<std::uint32_t>(std::stoi(label)) + 1;
}

bool isSelected(const Note& note, const std::set<unsigned long long>& ids) {
    return ids.empty() || ids.count(note.noteId) != 0;
}

// The notes in their order. They stay where they are: pointers are cheaper to sort.
std::vector<const SortEntry*> sorted(const std::vector<SortEntry>& entries,
                                     const NoteOrder& before) {
    std::vector<const SortEntry*> order;
    order.reserve(entries.size());
    for (const SortEntry& entry : entries) {
        order.push_back(&entry);
    }
    if (before) {
        const NoteOrder copy = before;  // the caller's own callable is never invoked
        mergeSort(order, [&copy](const SortEntry* a, const SortEntry* b) {
            return copy(static_cast<long long>(a->note.noteId),
                        static_cast<long long>(b->note.noteId));
        });
    } else {
        mergeSort(order, [](const SortEntry* a, const SortEntry* b) {
            return a->pageKey < b->pageKey;
        });
    }
    return order;
}

}  // namespace

int NotesExporterImpl::writeBookmarks(Writer& writer, const std::string& bookHash,
                                      const std::set<unsigned long long>& ids,
                                      const NoteOrder& before) {
    std::vector<SortEntry> entries;
    for (const auto& key : readerDb_.getBookNotesHashUUIDs(bookHash, true)) {
        Note note = readerDb_.getNote(key.first);
        if (isSelected(note, ids)) {
            const std::uint32_t noteKey = pageKey(getNotePage(note));
            entries.push_back({noteKey, std::move(note)});
        }
    }
    for (const SortEntry* entry : sorted(entries, before)) {
        writeBookmark(writer, entry->note);
    }
    return 0;
}

}  // namespace veloran
