// Devices on the host platform, each in a folder of its own that lasts as long as the
// process.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "store/records.h"

// Books of which each note has a text, a position and, every second one, a comment.
host::BookRecord bookOfNotes(std::size_t notes);

// Books of as many notes with a picture of 400 KB each.
host::BookRecord bookOfPictures(std::size_t notes);

// A book of one note, whose comment has as many bytes and is a tenth line breaks.
host::BookRecord bookOfComment(std::size_t bytes);

using MakeBook = host::BookRecord (*)(std::size_t size);

// Enters the device that holds this book, and its export in kDocument; makes both first
// where they are missing.
void enterCollection(MakeBook makeBook, std::size_t size);
inline constexpr char kDocument[] = "exported.html";

void removeReaderDatabase();
void hideReaderDatabase();
void showReaderDatabase();

// What an application does: creates an exporter, uses it and frees it. A failure aborts.
void createAndFreeExporter();
void askForFileName();
void exportBook();
void exportBookBackwards();  // in the order of a predicate
void removeExport();
void importDocument();
