// Lower bounds for exports and imports on the host platform's databases.
#pragma once

#include "store/records.h"

// Reads every row of the reader database twice, as an export must: for the dump and for the
// notes. Locks the database once.
void readRowsInOneGo();

// Reads the rows as the library does, with one query for each note, which locks the
// database each time.
void readRowsAsAsked();

// Creates the reader database and inserts the book's rows in one transaction.
void insertRows(const host::BookRecord& book);
