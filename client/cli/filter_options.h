// The options that select notes.
#pragma once

#include <CLI/CLI.hpp>

#include "client/collection/note_filter.h"

namespace client {

// Adds the options, which set `filter`; it must live as long as the command.
void addFilter(CLI::App& command, NoteFilter& filter);

}  // namespace client
