// The options that select notes, for every command that has them.
#pragma once

#include <CLI/CLI.hpp>

#include "client/collection/note_filter.h"

namespace client {

// Fills in `filter`, which must live as long as the command.
void addFilter(CLI::App& command, NoteFilter& filter);

}  // namespace client
