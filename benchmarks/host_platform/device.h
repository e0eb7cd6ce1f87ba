// Devices on the host platform, each in a folder that is removed when the process exits.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "store/records.h"

// Returns a book whose notes have a text and a position, and every second one a comment.
host::BookRecord bookOfNotes(std::size_t notes);

// Returns a book whose notes have a picture of 400 KB each.
host::BookRecord bookOfPictures(std::size_t notes);

// Returns a book of one note with a comment of `bytes` bytes, a tenth of them line breaks.
host::BookRecord bookOfComment(std::size_t bytes);

using MakeBook = host::BookRecord (*)(std::size_t size);

// Enters a device with this book and with its export in kDocument; creates both if they are
// missing.
void enterCollection(MakeBook makeBook, std::size_t size);
inline constexpr char kDocument[] = "exported.html";

void removeReaderDatabase();
void hideReaderDatabase();
void showReaderDatabase();

// Each function creates an exporter, uses it and frees it, as applications do. A failure
// aborts.
void createAndFreeExporter();
void queryFileName();
void exportBook();
void exportBookBackwards();  // in the order of a predicate
void removeExport();
void importDocument();
