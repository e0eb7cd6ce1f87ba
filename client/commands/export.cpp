#include <iostream>
#include <set>
#include <string>
#include <utility>

#include "client/collection/books.h"
#include "client/commands/batch.h"
#include "client/commands/commands.h"
#include "client/pages/note_selection.h"
#include "client/pages/page_export.h"
#include "client/terminal/terminal.h"

namespace client {
namespace {

class Command {
public:
    explicit Command(const ExportRequest& request)
        : request_(request),
          notes_(request.filter, request.order),
          pages_(request.target) {}
    void run();

private:
    bool exportBooks();
    Outcome exportBook(const host::BookEntry& book);
    Outcome publish();

    const ExportRequest& request_;
    std::set<std::string> exported_;  // hashes
    NoteReader notes_;
    PageExport pages_;
};

void Command::run() {
    const bool isRendered = exportBooks();
    const bool isPublished = report([this] { return publish(); });
    if (isRendered) {
        notes_.requireFound();
    }
    requireDone(isRendered && isPublished);
}

bool Command::exportBooks() {
    constexpr const char* kWhat = "Exporting";
    if (request_.books.empty()) {
        return runBatch(kWhat, allBooks(),
                        [&](const host::BookEntry& book) { return exportBook(book); });
    }
    return runBatch(kWhat, request_.books,
                    [&](const std::string& typed) { return exportBook(findBook(typed)); });
}

Outcome Command::exportBook(const host::BookEntry& book) {
    requireHash(book);
    if (!exported_.insert(book.fastHash).second) {  // it was named twice
        return {};
    }
    const bool isOnlyBook = request_.books.size() == 1;
    NoteSelection notes = selectNotes(notes_, book.fastHash, isOnlyBook);
    if (!notes.isEmpty) {
        pages_.add(book, std::move(notes));
    }
    return pages_.isFull() ? publish() : Outcome();
}

Outcome Command::publish() {
    Outcome outcome;
    for (const ExportedPage& page : pages_.publish()) {
        outcome.result += page.path.empty() ? "" : printable(page.path) + '\n';
        outcome.message += page.message;
        outcome.failed = outcome.failed || page.failed;
    }
    return outcome;
}

}  // namespace

void exportNotes(const ExportRequest& request) { Command(request).run(); }

void printName(const std::string& typed, const PageTarget& target) {
    const host::BookEntry book = findBook(typed);
    const NoteFilter all;
    NoteReader notes(all, NoteOrder::Reading);
    std::cout << printable(PageExport(target).nextPath(
                     book, selectNotes(notes, book.fastHash, false)))
              << '\n';
}

}  // namespace client
