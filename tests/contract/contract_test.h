// A device with two books, to hold a platform's promises against.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contract_device.h"
#include "scratch_directory.h"
#include "utilities/reader_db_manager.h"

using veloran::utilities::Note;
using veloran::utilities::ReaderDbManager;

inline const std::string kHash = "00ff7a";  // of the book that has notes
inline const std::string kAnyBytes("\0\xff\xd8 \x80'\"", 7);
constexpr int kUnknown = 987654;

// The notes of the book kHash.
std::vector<Note> notesOnDevice();

class SeamContract : public testing::Test {
protected:
    SeamContract();

    const ScratchDirectory scratch_;
    unsigned long long book_;  // item identifier of the book kHash
};
