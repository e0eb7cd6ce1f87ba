// The examples at the end of the help texts.
#pragma once

namespace examples {

inline constexpr const char* kAll = R"(Examples:
  notes-export -C reader load device.json
  notes-export -C reader books
  notes-export -C reader export 39e85c7ba5bfce834a72bc6a1c1bfa13
  notes-export -C other import reader/mnt/ext1/Notes/Emma.html

"notes-export COMMAND --help" explains a command; "man notes-export" tells all.)";

inline constexpr const char* kBooks = R"(Examples:
  notes-export -C reader books | grep Melville
  notes-export -C reader books --json | jq -r '.[].title')";

inline constexpr const char* kNotes = R"(Examples:
  notes-export -C reader notes 39e85c7ba5bfce834a72bc6a1c1bfa13 --color yellow
  notes-export -C reader notes --since 2026-01-01 --format csv >notes.csv)";

inline constexpr const char* kExport = R"(Examples:
  notes-export -C reader export 39e85c7ba5bfce834a72bc6a1c1bfa13 --order newest
  notes-export -C reader export 39e85c7ba5bfce834a72bc6a1c1bfa13 --note 3 --note 5 --dir .)";

}  // namespace examples
