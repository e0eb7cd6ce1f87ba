// The library database: the title, author and path of each book, and properties of files.
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

// A connection to the database; serves one thread at a time. Every failure is
// std::bad_alloc or a std::runtime_error that names the file and the cause.
class LibraryStore {
public:
    // Opens the database at `path`, and creates it and its directories if they are missing.
    explicit LibraryStore(const std::string& path);
    ~LibraryStore();
    LibraryStore(const LibraryStore&) = delete;
    LibraryStore& operator=(const LibraryStore&) = delete;

    // Returns whether the database that is at `path` now is this one.
    bool isAt(const std::string& path) const;

    // Adds the book, or changes the one with its hash as OnKnownBook::Overwrite says.
    void putBook(const LibraryBook& book);

    // Adds the books in one transaction; `known` says how books with a known hash change.
    void putBooks(const std::vector<LibraryBook>& books, OnKnownBook known);

    std::optional<std::int64_t> findBook(const std::string& fastHash);  // raw bytes
    std::optional<LibraryBook> book(std::int64_t id);

    // Sets or returns a numbered property of the file with the fast hash `hash`.
    void setFileProp(const std::string& hash, int prop, const std::string& value);
    std::optional<std::string> fileProp(const std::string& hash, int prop);

    // Makes everything that `work` does through this object one transaction.
    void inWriteTransaction(const std::function<void()>& work);

private:
    std::unique_ptr<Connection> connection_;
};

}  // namespace host
