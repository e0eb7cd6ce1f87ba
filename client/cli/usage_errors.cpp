#include "client/cli/usage_errors.h"

#include "client/terminal/terminal.h"
#include "client/text/affixes.h"
#include "client/text/case_folding.h"
#include "client/text/control_characters.h"
#include "client/text/iso_time.h"
#include "client/text/numbers.h"

namespace client {

std::string checkNoteId(const std::string& text) {
    return text[0] != '0' && parseNumber<unsigned long long>(text)
               ? std::string()
               : text + " is not the identifier of a note";
}

std::string checkDate(const std::string& text) {
    return parseIsoTime(text) ? std::string()
                              : text +
                                    " is not a date, such as 2026-03-07, or a date and "
                                    "time, such as 2026-03-07T09:05Z";
}

std::string checkSearchText(const std::string& text) {
    return text.empty()               ? "the text to look for is empty"
           : caseFolded(text).empty() ? "the text to look for has only invisible characters"
                                      : std::string();
}

std::string checkFile(const std::string& path) {
    return path.empty()         ? "the path is empty"
           : path.back() == '/' ? path + " names a folder, which is for --dir"
                                : std::string();
}

CLI::Error unknownWords(const std::vector<std::string>& words) {
    const std::string& first = words.front();
    if (startsWith(first, "-")) {
        return CLI::ExtrasError(words);
    }
    return CLI::ParseError("Unknown command: " + oneLine(first),
                           CLI::ExitCodes::ExtrasError);
}

std::string usageError(const CLI::App* app, const CLI::Error& error) {
    std::string command = app->get_name();
    for (const CLI::App* typed : app->get_subcommands()) {
        command += " " + typed->get_name();
    }
    return errorText(std::string(error.what()) + "\nTry \"" + command + " --help\".");
}

}  // namespace client
