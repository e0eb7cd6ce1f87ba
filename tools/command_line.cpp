#include "command_line.h"

#include <CLI/CLI.hpp>
#include <charconv>
#include <filesystem>
#include <functional>

#include "commands.h"
#include "complaint.h"
#include "device_paths.h"

namespace {

namespace fs = std::filesystem;

// A path as the caller means it, whichever folder the device is in.
void makeAbsolute(std::string& path) {
    if (!path.empty()) {
        path = fs::absolute(path).string();
    }
}

// Stricter than the parser, which takes signs and octal numbers and lets large ones wrap.
std::string isIdentifier(const std::string& text) {
    unsigned long long id = 0;
    const char* end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, id);
    return parsed.ec == std::errc() && parsed.ptr == end && text[0] != '0'
               ? std::string()
               : text + " is not the identifier of a note";
}

class CommandLine {
public:
    CommandLine();
    int run(int argc, const char* const* argv);

private:
    enum class Device { MayBeEmpty, MustExist };

    CLI::App* addCommand(const char* name, const char* description, Device device,
                         std::function<void()> action);
    void addFileCommands();
    void addListCommands();
    void addExportCommands();
    void addHash(CLI::App* command);
    void addDirectory(CLI::App* command);
    void enterDevice(Device device);

    CLI::App app_{
        "Exports the notes of a book into one file that any browser opens, and "
        "imports such files.",
        "notes-export"};
    std::string device_;
    std::string file_;
    ExportRequest request_;
};

CommandLine::CommandLine() {
    app_.require_subcommand(1);
    app_.add_option("-C", device_,
                    "The folder that holds the device (default: this folder)")
        ->type_name("DIR")
        ->check(CLI::ExistingDirectory);
    addFileCommands();
    addListCommands();
    addExportCommands();
}

int CommandLine::run(int argc, const char* const* argv) {
    try {
        app_.parse(argc, argv);
    } catch (const CLI::RequiredError& error) {
        // Of an unknown command, the parser says only that a known one is missing.
        const std::vector<std::string> unknown = app_.remaining();
        app_.exit(unknown.empty() ? CLI::Error(error) : CLI::ExtrasError(unknown));
        return 2;
    } catch (const CLI::ParseError& error) {
        return app_.exit(error) == 0 ? 0 : 2;
    }
    return 0;
}

CLI::App* CommandLine::addCommand(const char* name, const char* description, Device device,
                                  std::function<void()> action) {
    CLI::App* command = app_.add_subcommand(name, description);
    command->callback([this, device, action = std::move(action)] {
        enterDevice(device);
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

void CommandLine::addListCommands() {
    addCommand("books", "List the books: hash, title, author", Device::MustExist,
               listBooks);
    addHash(addCommand("notes", "List a book's notes: identifier, page, colour, text",
                       Device::MustExist, [this] { listNotes(request_.hash); }));
}

void CommandLine::addExportCommands() {
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

void CommandLine::addDirectory(CLI::App* command) {
    command
        ->add_option("--dir", request_.directory,
                     "Folder for the exported file (default: the device's own)")
        ->type_name("DIR");
}

// The library finds the device in the working directory. Paths that the caller types, and
// those printed, stay relative to the caller's own.
void CommandLine::enterDevice(Device device) {
    makeAbsolute(file_);
    makeAbsolute(request_.directory);
    if (!device_.empty()) {
        request_.deviceFolder = device_;
        fs::current_path(device_);
    }
    if (device == Device::MustExist && !fs::exists(host::kReaderDatabasePath)) {
        throw Complaint(
            "There is no device in " + fs::current_path().string() +
            ". Name its folder with -C, or make one with \"notes-export load\".");
    }
}

}  // namespace

int runCommandLine(int argc, const char* const* argv) {
    return CommandLine().run(argc, argv);
}
