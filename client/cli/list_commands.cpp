// The commands books and notes.
#include <memory>

#include "client/cli/command_line.h"
#include "client/cli/examples.h"
#include "client/cli/filter_options.h"
#include "client/commands/commands.h"

namespace client {
namespace {

std::vector<std::string> formatNames(bool areForBooks) {
    std::vector<std::string> names;
    for (const ListingFormat* format : kListingFormats) {
        if (!areForBooks || format->listBooks != nullptr) {
            names.emplace_back(format->name);
        }
    }
    return names;
}

// Sets the format with this name, which is valid.
void setFormat(const ListingFormat*& chosen, const std::string& name) {
    for (const ListingFormat* format : kListingFormats) {
        chosen = format->name == name ? format : chosen;
    }
}

void addFormat(CLI::App& command, const ListingFormat*& format, bool isForBooks) {
    command
        .add_option_function<std::string>(
            "--format", [&format](const std::string& name) { setFormat(format, name); },
            "Format of the list (default: lines)")
        ->type_name("FORMAT")
        ->check(CLI::IsMember(formatNames(isForBooks)));
    command.add_flag_callback(
        "--json", [&format] { format = &kJsonFormat; }, "Same as --format json");
}

void addBooks(CommandLine& commandLine) {
    const auto format = std::make_shared<const ListingFormat*>(&kLineFormat);
    CLI::App& books =
        addCommand(commandLine, "books", "List the books: hash, title, author",
                   CollectionNeed::MustExist, [format] { listBooks(**format); });
    addFormat(books, *format, true);
    books.footer(examples::kBooks);
}

void addPictures(CLI::App& command, FolderForPictures& pictures) {
    command
        .add_option_function<std::string>(
            "--pictures",
            [&pictures](const std::string& folder) {
                pictures = {folder, folder};
                makeAbsolute(pictures.path);
            },
            "With Markdown: write pictures into this folder and show them")
        ->type_name("DIR");
}

void listNotesAsAsked(const NotesRequest& request) {
    if (!request.pictures.path.empty() && request.format != &kMarkdownFormat) {
        throw CLI::ValidationError("--pictures", "only --format markdown shows pictures");
    }
    if (request.format == &kAnnotationFormat && request.books.size() != 1) {
        throw CLI::ValidationError("--format",
                                   "annotations are of one BOOK, which must be named");
    }
    listNotes(request);
}

void addNotes(CommandLine& commandLine) {
    const auto request = std::make_shared<NotesRequest>();
    CLI::App& notes = addCommand(
        commandLine, "notes", "List notes: identifier, page or location, colour, text",
        CollectionNeed::MustExist, [request] { listNotesAsAsked(*request); });
    notes.add_option("BOOK", request->books,
                     "Hash or title of a book, or its start (default: all books)");
    addFormat(notes, request->format, false);
    addFilter(notes, request->filter);
    addOrder(notes, request->order);
    addPictures(notes, request->pictures);
    notes.footer(examples::kNotes);
}

}  // namespace

void addListCommands(CommandLine& commandLine) {
    addBooks(commandLine);
    addNotes(commandLine);
}

}  // namespace client
