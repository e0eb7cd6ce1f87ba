// Access to a platform's device for the contract suite. Every platform that runs the suite
// implements these functions.
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

// Creates an empty device in the working directory, which is empty.
void startEmptyDevice();

// Adds the book and its notes, in this order, to both databases of the device.
void putOnDevice(const ContractBook& book);

// Returns the URI of a position on the page.
std::string uriOfPage(double page);

// Returns the path of the platform's reader database.
std::string readerDatabasePath();

// Returns a property of a file in the library database.
std::optional<std::string> filePropOnDevice(const std::string& hash, int prop);
