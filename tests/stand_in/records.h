// Records for the stand-in's reader database, on devices and in dumps.
#pragma once

#include <string>
#include <vector>

#include "device_paths.h"
#include "engine.h"
#include "files.h"
#include "note_tags.h"
#include "reader_store.h"
#include "scratch_directory.h"

// Everything in the records as text, so that a difference shows.
std::string show(const std::vector<host::BookRecord>& books);

// Two books in the dump's order, with every kind of tag and string: unknown tags, bytes
// that are no text, a uuid of two notes.
std::vector<host::BookRecord> sampleBooks();

// The payloads that hold `text`, and a dump of the books that the JSON text lists.
std::string gzipped(const std::string& text);
std::string dumpOf(const std::string& books);

// What the device's reader database holds, as records and as bytes.
std::string recordsOnDevice();
std::string databaseBytes();

// Merges the records into the device's reader database.
int merge(const std::vector<host::BookRecord>& books);

// The payload of the device's first two books.
std::string exported();
