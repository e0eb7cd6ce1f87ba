// Records for the stand-in's reader database, and dumps of records.
#pragma once

#include <string>
#include <vector>

#include "records.h"

// Everything in the records as text, so that a difference shows.
std::string show(const std::vector<host::BookRecord>& books);

// Two books in the dump's order, with every kind of tag and string: unknown tags, bytes
// that are no text, a uuid of two notes.
std::vector<host::BookRecord> sampleBooks();

// The payloads that hold `text`, and a dump of the books that the JSON text lists.
std::string gzipped(const std::string& text);
std::string dumpOf(const std::string& books);
