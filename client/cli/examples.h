// The examples at the end of the help texts.
#pragma once

namespace client {

namespace examples {

inline constexpr const char* kAll = R"(Examples:
  notes-export -C reader load "My Clippings.txt" --pages Notes
  notes-export -C reader books
  notes-export -C reader export --dir Notes
  notes-export -C other import Notes/Emma.html

"notes-export COMMAND --help" explains a command. The full manual: "man notes-export")";

inline constexpr const char* kBooks = R"(Examples:
  notes-export -C reader books | grep Melville
  notes-export -C reader books --json | jq -r '.[].title')";

inline constexpr const char* kNotes = R"(Examples:
  notes-export -C reader notes Emma --color yellow
  notes-export -C reader notes --since 2026-01-01 --format csv >notes.csv)";

inline constexpr const char* kExport = R"(Examples:
  notes-export -C reader export Emma --color yellow --order newest
  notes-export -C reader export --dir Notes)";

}  // namespace examples

}  // namespace client
