#include "client/cli/usage_errors.h"

#include <charconv>

#include "client/error.h"
#include "client/text/iso_time.h"
#include "client/text/one_line.h"

std::string isIdentifier(const std::string& text) {
    unsigned long long id = 0;
    const char* end = text.data() + text.size();
    const auto parsed = std::from_chars(text.data(), end, id);
    return parsed.ec == std::errc() && parsed.ptr == end && text[0] != '0'
               ? std::string()
               : text + " is not the identifier of a note";
}

std::string isTime(const std::string& text) {
    return parseIsoTime(text) ? std::string()
                              : text +
                                    " is not a date, as 2026-03-07, or a date and time, "
                                    "as 2026-03-07T09:05Z";
}

std::string isNotEmpty(const std::string& text) {
    return text.empty() ? "the text to look for is empty" : std::string();
}

CLI::Error notUnderstood(const std::vector<std::string>& words) {
    const std::string& first = words.front();
    if (first.rfind('-', 0) == 0) {
        return CLI::ExtrasError(words);
    }
    return CLI::ParseError("Unknown command: " + oneLine(first),
                           CLI::ExitCodes::ExtrasError);
}

std::string misuse(const CLI::App* app, const CLI::Error& error) {
    std::string command = app->get_name();
    for (const CLI::App* typed : app->get_subcommands()) {
        command += " " + typed->get_name();
    }
    return complaintText(std::string(error.what()) + "\nTry \"" + command + " --help\".");
}
