// The least that exporting and importing can do, on the host platform's databases.
#pragma once

#include "store/records.h"

// Reads every row of the reader database twice, as an export must, which writes the dump
// first and then one note after the other: with one lock of the database for all.
void readRowsInOneGo();

// The same as the library asks for them: each note on its own, when nobody knows which one
// is the last, so that the database is locked and unlocked for each.
void readRowsAsAsked();

// Creates the reader database, and inserts the book's rows in one transaction.
void insertRows(const host::BookRecord& book);
