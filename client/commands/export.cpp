#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <iostream>
#include <utility>

#include "client/collection/book_search.h"
#include "client/commands/batch.h"
#include "client/commands/commands.h"
#include "client/pages/exporter.h"
#include "client/pages/note_selection.h"
#include "client/pages/page_export.h"
#include "client/text/one_line.h"

namespace {

// Programs get every byte; a terminal would obey some of them.
std::string printable(const std::string& path) {
    return (isatty(STDOUT_FILENO) == 1 ? oneLine(path) : path) + '\n';
}

Outcome outcome(const ExportedPage& page) {
    Outcome result{page.path.empty() ? "" : printable(page.path)};
    if (!page.unrecorded.empty()) {
        result.complaint =
            "The page carries no records that an import could read: " + page.unrecorded +
            '.';
        result.failed = true;
    }
    return result;
}

class Command {
public:
    explicit Command(const ExportRequest& request) : request_(request), pages_(request) {}
    void run();

private:
    Outcome exportBook(const host::BookEntry& book);
    Outcome exportTyped(const std::string& typed);

    const ExportRequest& request_;
    PageExport pages_;
    bool selectsNone_ = true;
};

void Command::run() {
    constexpr const char* kWhat = "Exporting";
    if (request_.books.empty()) {
        doEach(kWhat, allBooks(), [&](const auto& book) { return exportBook(book); });
    } else {
        doEach(kWhat, request_.books,
               [&](const auto& typed) { return exportTyped(typed); });
    }
    if (selectsNone_) {
        throw Complaint("No note is selected, and nothing was exported.");
    }
}

Outcome Command::exportTyped(const std::string& typed) {
    const host::BookEntry book = findBook(typed);
    if (request_.books.size() == 1) {
        complainUnlessNotesExist(book.fastHash, request_);
    }
    return exportBook(book);
}

Outcome Command::exportBook(const host::BookEntry& book) {
    complainUnlessHash(book);
    NoteSelection notes = selectNotes(book.fastHash, request_);
    if (notes.isEmpty) {
        return {};
    }
    selectsNone_ = false;
    return outcome(pages_.write(book, std::move(notes)));
}

}  // namespace

void exportNotes(const ExportRequest& request) {
    static_cast<void>(
        std::signal(SIGXFSZ, SIG_IGN));  // a file at its size limit is a failed write
    Command(request).run();
}

void printName(const ExportRequest& request) {
    const std::string hash = findBook(request.books.front()).fastHash;
    const std::string path = Exporter(request.directory).fileName(hash);
    std::cout << printable((std::filesystem::path(request.deviceFolder) / path).string());
}
