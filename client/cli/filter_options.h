// The options that select notes, the same for every command that takes some.
#pragma once

#include <CLI/CLI.hpp>

#include "client/collection/note_filter.h"

// Fills in `filter`, which must live as long as the command.
void addFilter(CLI::App& command, NoteFilter& filter);
