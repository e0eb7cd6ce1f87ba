// Prints the peak memory of a process that exports, its limit, and the peak of an import of
// the document: peak_memory notes|predicate|comment|pictures SIZE
#include <malloc.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <functional>
#include <map>

#include "device.h"
#include "document.h"
#include "utilities/reader_db_manager.h"

namespace {

constexpr char kBook[] = "626f6f6b";

struct Case {
    MakeBook makeBook;
    void (*exportIt)() = exportBook;
};

const std::map<std::string, Case> kCases = {
    {"notes", {bookOfNotes}},
    {"predicate", {bookOfNotes, exportBookBackwards}},
    {"comment", {bookOfComment}},
    {"pictures", {bookOfPictures}}};

// Returns the peak memory of the job in KiB, as the system reports it.
long peakOf(const std::function<void()>& job) {
    const pid_t child = fork();
    if (child == 0) {
        job();
        _exit(0);
    }
    int status = 0;
    rusage usage = {};
    wait4(child, &status, 0, &usage);
    if (status != 0) {
        std::abort();
    }
    return usage.ru_maxrss;
}

long kibibytes(std::size_t bytes) { return static_cast<long>(bytes / 1024); }

// Returns the memory of one copy of all notes of the book.
std::size_t sizeOfNotes() {
    veloran::utilities::ReaderDbManager manager;
    std::deque<veloran::utilities::Note> notes;
    const auto held = [] { return mallinfo2().uordblks + mallinfo2().hblkhd; };
    const std::size_t before = held();
    for (const auto& key : manager.getBookNotesHashUUIDs(kBook, true)) {
        notes.push_back(manager.getNote(key.first));
    }
    return held() - before;
}

// Returns the size of the longest text of a note, because the platform returns a copy.
std::size_t sizeOfLongestText() {
    veloran::utilities::ReaderDbManager manager;
    std::size_t longest = 0;
    for (const auto& key : manager.getBookNotesHashUUIDs(kBook, true)) {
        const veloran::utilities::Note note = manager.getNote(key.first);
        longest = std::max({longest, note.getText().size(), note.getNote().size()});
    }
    return longest;
}

// Returns the size of the payload, its Base64 text and the markup of one picture, which has
// the same size for all.
std::size_t sizeOfDocumentParts() {
    const std::string document = contentOf(kDocument);
    const std::size_t base64 = document.find("</script>") - document.find("<script");
    const std::size_t picture = std::min(document.find("<img"), document.size());
    const std::size_t end = std::min(document.find("</img>", picture), document.size());
    return base64 + base64 / 4 * 3 + (end - picture);
}

std::size_t inChild(std::size_t (*measure)()) {
    void* shared = mmap(nullptr, sizeof(std::size_t), PROT_READ | PROT_WRITE,
                        MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    auto* const result = static_cast<std::size_t*>(shared);
    peakOf([&] { *result = measure(); });
    return *result;
}

}  // namespace

int main(int count, char** arguments) {
    const auto found = kCases.find(count == 3 ? arguments[1] : "");
    if (found == kCases.end()) {
        return EXIT_FAILURE;
    }
    const Case& chosen = found->second;
    const std::size_t size = std::stoul(arguments[2]);
    enterCollection(bookOfNotes, 1);
    const long bare = peakOf(exportBook);
    peakOf([&] { enterCollection(chosen.makeBook, size); });  // not measured
    enterCollection(chosen.makeBook, size);
    const long peak = peakOf(chosen.exportIt);
    const std::size_t parts =
        inChild(sizeOfNotes) + inChild(sizeOfLongestText) + inChild(sizeOfDocumentParts);
    const long allowed = bare + kibibytes(parts) + 8 * 1024;
    removeReaderDatabase();
    std::printf("%s/%zu %ld %ld %ld\n", arguments[1], size, peak, allowed,
                peakOf(importDocument));
    return EXIT_SUCCESS;
}
