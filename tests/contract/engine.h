// Devices to import on, and documents to import there. Knows the seam alone.
#pragma once

#include <string>

#include "readerlib/database.h"
#include "readerlib/import_export_db.h"

// The engine on the reader database of the device.
class Engine {
public:
    Engine();
    Veloran::ReaderLib::ImportExportDBV2* operator->() { return &engine_; }

private:
    Veloran::ReaderLib::DataBase database_;
    Veloran::ReaderLib::ImportExportDBV2 engine_{&database_, 10, 3};
};

// The exported document around the payload; `head` goes before the dump's element.
std::string documentOf(const std::string& payload, const std::string& head = "");

// The same around the text of the dump's element.
std::string documentAround(const std::string& dump, const std::string& head = "");

// What importing the document gives.
int imported(const std::string& document);
