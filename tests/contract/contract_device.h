// What the contract suite needs of a platform beyond the seam: to see its device's content.
// Every platform that runs the suite implements these functions.
#pragma once

#include <optional>
#include <string>
#include <vector>

struct ContractNote {
    std::string uuid;
    std::string color;
    std::string text;
    std::string comment;
    std::string image;
    std::string anchor;  // URI
};

struct ContractBook {
    std::string hash;  // hexadecimal text
    std::string title;
    std::string author;  // of the library database
    std::string path;
    std::vector<ContractNote> notes;
};

// Makes the working directory, which is empty, an empty device.
void startEmptyDevice();

// Puts the book and its notes, in the order given, into both databases of the device.
void putOnDevice(const ContractBook& book);

// A position in a book that names the page.
std::string uriOfPage(double page);

// The path that the platform's reader database has.
std::string readerDatabasePath();

// A property of a file in the library database.
std::optional<std::string> filePropOnDevice(const std::string& hash, int prop);
