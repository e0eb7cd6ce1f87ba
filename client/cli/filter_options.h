// The options that select and order notes.
#pragma once

#include <CLI/CLI.hpp>

#include "client/collection/note_filter.h"
#include "client/collection/note_order.h"

namespace client {

// Adds the options, which set `filter`; it must live as long as the command.
void addFilter(CLI::App& command, NoteFilter& filter);

// Adds --order, which sets `order`; it must live as long as the command.
void addOrder(CLI::App& command, NoteOrder& order);

}  // namespace client
