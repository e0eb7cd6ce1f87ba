// The library database: what the device knows of every book and file on it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "store/records.h"

namespace host {

class Connection;

struct LibraryBook {
    std::string fastHash;  // raw bytes, not empty
    std::string title;
    std::string author;
    std::string path;  // of the book's file
};

// One connection to the database; serves one thread at a time. Every failure is an
// exception of the std::runtime_error family that names the file and what is wrong with it.
class LibraryStore {
public:
    // Opens the database at `path`, creating it, and the directories to it, when missing.
    explicit LibraryStore(const std::string& path);
    ~LibraryStore();
    LibraryStore(const LibraryStore&) = delete;
    LibraryStore& operator=(const LibraryStore&) = delete;

    // Whether this is the database that opening `path` would give now.
    bool isAt(const std::string& path) const;

    // Adds the book, or replaces what is known of the one with its hash.
    void putBook(const LibraryBook& book);

    // Adds all these in one transaction; what is known of those that are there changes as
    // `known` says.
    void putBooks(const std::vector<LibraryBook>& books, OnKnownBook known);

    std::optional<std::int64_t> findBook(const std::string& fastHash);  // raw bytes
    std::optional<LibraryBook> book(std::int64_t id);

    // A property of the file with the fast hash `hash`, by number.
    void setFileProp(const std::string& hash, int prop, const std::string& value);
    std::optional<std::string> fileProp(const std::string& hash, int prop);

    // Makes everything that `work` does through this object one transaction.
    void inWriteTransaction(const std::function<void()>& work);

private:
    std::unique_ptr<Connection> connection_;
};

}  // namespace host
