// Records in the reader database of the stand-in's device.
#pragma once

#include <string>
#include <vector>

#include "device_paths.h"
#include "engine.h"
#include "note_tags.h"
#include "reader_store.h"
#include "sample_records.h"

// What the device's reader database holds, as records and as bytes.
std::string recordsOnDevice();
std::string databaseBytes();

// Merges the records into the device's reader database.
int merge(const std::vector<host::BookRecord>& books);

// The payload of the device's first two books.
std::string exported();
