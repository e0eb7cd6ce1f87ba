#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <functional>

#include "cli/examples.h"
#include "cli/misuse.h"
#include "commands/commands.h"
#include "device/device_folder.h"

namespace {

class CommandLine {
public:
    CommandLine();
    int run(int argc, const char* const* argv);

private:
    CLI::App* addCommand(const char* name, const char* description, Device device,
                         std::function<void()> action);
    void addFileCommands();
    void addBooks();
    void addNotes();
    void addExport();
    void addName();
    void addHash(CLI::App* command);
    void addFormat(CLI::App* command);
    void addDirectory(CLI::App* command);
    void resolvePaths();

    CLI::App app_{
        "Exports the notes of a book into one file that any browser opens, and "
        "imports such files.",
        "notes-export"};
    std::string device_;
    std::string file_;
    Format format_ = Format::Lines;
    ExportRequest request_;
};

CommandLine::CommandLine() {
    app_.require_subcommand(1);
    app_.failure_message(misuse);
    app_.set_version_flag("--version", "notes-export " NOTES_EXPORT_VERSION);
    app_.add_option("-C", device_,
                    "The folder that holds the device (default: this folder)")
        ->type_name("DIR");
    addFileCommands();
    addBooks();
    addNotes();
    addExport();
    addName();
    app_.footer(examples::kAll);  // last, as commands take over the one there is
}

int CommandLine::run(int argc, const char* const* argv) {
    try {
        app_.parse(argc, argv);
    } catch (const CLI::RequiredError& error) {
        // Of an unknown command, the parser says only that a known one is missing.
        const std::vector<std::string> unknown = app_.remaining();
        app_.exit(unknown.empty() ? CLI::Error(error) : notUnderstood(unknown));
        return 2;
    } catch (const CLI::ParseError& error) {
        return app_.exit(error) == 0 ? 0 : 2;
    }
    return 0;
}

CLI::App* CommandLine::addCommand(const char* name, const char* description, Device device,
                                  std::function<void()> action) {
    CLI::App* command = app_.add_subcommand(name, description);
    command->fallthrough();  // -C may follow it
    command->callback([this, device, action = std::move(action)] {
        resolvePaths();
        enterDevice(device_, device);
        action();
    });
    return command;
}

void CommandLine::addFileCommands() {
    addCommand("load", "Put the books and notes of a device file on the device",
               Device::MayBeEmpty, [this] { load(file_); })
        ->add_option("FILE", file_, "The device file (JSON)")
        ->required();
    addCommand("import", "Merge the notes that an exported file carries",
               Device::MayBeEmpty, [this] { importNotes(file_); })
        ->add_option("FILE", file_, "The exported file")
        ->required();
}

void CommandLine::addBooks() {
    CLI::App* books = addCommand("books", "List the books: hash, title, author",
                                 Device::MustExist, [this] { listBooks(format_); });
    addFormat(books);
    books->footer(examples::kBooks);
}

void CommandLine::addNotes() {
    CLI::App* notes =
        addCommand("notes", "List a book's notes: identifier, page, colour, text",
                   Device::MustExist, [this] { listNotes(request_.hash, format_); });
    addHash(notes);
    addFormat(notes);
    notes->footer(examples::kNotes);
}

void CommandLine::addExport() {
    CLI::App* exporting =
        addCommand("export", "Export a book's notes and print the path of the file",
                   Device::MustExist, [this] { exportNotes(request_); });
    addHash(exporting);
    exporting
        ->add_option("--note", request_.noteIds, "Export only this note; may be repeated")
        ->type_name("ID")
        ->allow_extra_args(false)
        ->check(isIdentifier);
    exporting
        ->add_option("--order", request_.order, "Order of the notes: page, id or newest")
        ->type_name("ORDER")
        ->check(CLI::IsMember({"page", "id", "newest"}));
    addDirectory(exporting);
    exporting->footer(examples::kExport);
}

void CommandLine::addName() {
    CLI::App* naming =
        addCommand("name", "Print the path of the file that an export would write",
                   Device::MustExist, [this] { printName(request_); });
    addHash(naming);
    addDirectory(naming);
}

void CommandLine::addHash(CLI::App* command) {
    command->add_option("HASH", request_.hash, "The book's hash, as \"books\" prints it")
        ->required();
}

void CommandLine::addFormat(CLI::App* command) {
    command->add_flag_callback(
        "--json", [this] { format_ = Format::Json; },
        "Print one JSON array, with every field");
}

void CommandLine::addDirectory(CLI::App* command) {
    command
        ->add_option("--dir", request_.directory,
                     "Folder for the exported file (default: the device's own)")
        ->type_name("DIR");
}

// Paths that the caller types, and those printed, stay relative to the caller's own folder.
void CommandLine::resolvePaths() {
    makeAbsolute(file_);
    makeAbsolute(request_.directory);
    request_.deviceFolder = device_;
}

}  // namespace

int runCommandLine(int argc, const char* const* argv) {
    return CommandLine().run(argc, argv);
}
