#include "client/cli/filter_options.h"

#include <algorithm>
#include <string>
#include <vector>

#include "client/cli/usage_errors.h"
#include "client/text/iso_time.h"

namespace client {

void addFilter(CLI::App& command, NoteFilter& filter) {
    command
        .add_option("--note", filter.ids,
                    "Only the note with this identifier; may be repeated")
        ->type_name("ID")
        ->allow_extra_args(false)
        ->check(checkNoteId);
    command
        .add_option_function<std::vector<std::string>>(
            "--color",
            [&filter](const std::vector<std::string>& colors) {
                std::for_each(colors.begin(), colors.end(),
                              [&](const std::string& color) { filter.addColor(color); });
            },
            "Only notes of this colour; may be repeated")
        ->type_name("COLOR")
        ->allow_extra_args(false);
    command.add_option("--kind", filter.kinds, "Only notes of this kind; may be repeated")
        ->type_name("KIND")
        ->allow_extra_args(false)
        ->check(CLI::IsMember({"highlight", "note", "bookmark", "picture"}));
    command
        .add_option_function<std::string>(
            "--since",
            [&filter](const std::string& text) { filter.since = parseIsoTime(text); },
            "Only notes made on this day or later (2026-03-07)")
        ->type_name("DATE")
        ->check(checkDate);
    command
        .add_option_function<std::string>(
            "--match", [&filter](const std::string& text) { filter.setMatch(text); },
            "Only notes with this in their text or comment")
        ->type_name("TEXT")
        ->check(checkSearchText);
}

void addOrder(CLI::App& command, NoteOrder& order) {
    command
        .add_option_function<std::string>(
            "--order",
            [&order](const std::string& name) {
                order = name == "id"       ? NoteOrder::Id
                        : name == "newest" ? NoteOrder::Newest
                                           : NoteOrder::Reading;
            },
            "Order of the notes: reading (default), id or newest")
        ->type_name("ORDER")
        ->check(CLI::IsMember({"reading", "id", "newest", "page"}));
}

}  // namespace client
