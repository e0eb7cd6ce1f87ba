// Devices to work on, and documents to import there. Knows the seam alone.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "document.h"
#include "files.h"
#include "readerlib/database.h"
#include "readerlib/import_export_db.h"
#include "scratch_directory.h"

// A test on an empty device. A further ScratchDirectory is a second device.
class OnDevice : public ::testing::Test {
    ScratchDirectory scratch_;
};

// The engine on the reader database of the device.
class Engine {
public:
    Engine();
    Veloran::ReaderLib::ImportExportDBV2* operator->() { return &engine_; }

private:
    Veloran::ReaderLib::DataBase database_;
    Veloran::ReaderLib::ImportExportDBV2 engine_{&database_, 10, 3};
};

// What importing the document gives.
int imported(const std::string& document);
