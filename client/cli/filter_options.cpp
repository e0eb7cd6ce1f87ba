#include "client/cli/filter_options.h"

#include <string>

#include "client/cli/usage_errors.h"
#include "client/text/iso_time.h"

void addFilter(CLI::App& command, NoteFilter& filter) {
    command
        .add_option("--note", filter.ids, "Only the note with this identifier, or these")
        ->type_name("ID")
        ->allow_extra_args(false)
        ->check(isIdentifier);
    command.add_option("--color", filter.colors, "Only notes of this colour, or of these")
        ->type_name("COLOR")
        ->allow_extra_args(false);
    command
        .add_option_function<std::string>(
            "--since",
            [&filter](const std::string& text) { filter.since = parseIsoTime(text); },
            "Only notes made on this day or later (2026-03-07)")
        ->type_name("DATE")
        ->check(isTime);
    command.add_option("--match", filter.match, "Only notes with this text or comment")
        ->type_name("TEXT")
        ->check(isNotEmpty);
}
