// Books and notes on their way into the collection.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "client/collection/book.h"
#include "client/collection/packed_notes.h"
#include "store/records.h"

namespace client {

// The effect on a note that the collection has already.
enum class OnKnownNote {
    MergeNewer,  // of each part, the newer version stays
    ReplaceOwn,  // the same, but what only earlier loads of this file gave is replaced
    AddMissing,  // only the parts that it lacks are added
};

struct IncomingBook {
    Book book = {};              // an empty title, author or path is not known
    bool isHashDerived = false;  // from title and author
    OnKnownNote onKnownNote = OnKnownNote::MergeNewer;
    PackedNotes notes = {};

    // With ReplaceOwn: the notes, and versions of notes, that a later record of the file
    // replaces. The collection has them if the file was loaded before it had that record.
    PackedNotes replaced = {};

    // By uuid: the uuids that earlier versions of this program derived for the same note.
    std::unordered_map<std::string, std::vector<std::string>> formerUuids = {};

    // Notes from the dump of another collection, with any tags.
    std::vector<host::NoteRecord> records = {};
};

}  // namespace client
