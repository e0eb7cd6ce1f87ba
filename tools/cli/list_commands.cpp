// books and notes.
#include <memory>

#include "cli/examples.h"
#include "cli/program.h"
#include "commands/commands.h"

namespace {

struct ListRequest {
    std::string hash;
    Format format = Format::Lines;
};

void addFormat(CLI::App& command, Format& format) {
    command.add_flag_callback(
        "--json", [&format] { format = Format::Json; },
        "Print one JSON array, with every field");
}

void addBooks(Program& program) {
    const auto request = std::make_shared<ListRequest>();
    CLI::App& books =
        addCommand(program, "books", "List the books: hash, title, author",
                   Device::MustExist, [request] { listBooks(request->format); });
    addFormat(books, request->format);
    books.footer(examples::kBooks);
}

void addNotes(Program& program) {
    const auto request = std::make_shared<ListRequest>();
    CLI::App& notes = addCommand(
        program, "notes", "List a book's notes: identifier, page, colour, text",
        Device::MustExist, [request] { listNotes(request->hash, request->format); });
    addBook(notes, request->hash);
    addFormat(notes, request->format);
    notes.footer(examples::kNotes);
}

}  // namespace

void addListCommands(Program& program) {
    addBooks(program);
    addNotes(program);
}
