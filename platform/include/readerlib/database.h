/// @file
/// The handle on the reader database.
#pragma once

#include <memory>
#include <string>

namespace SqliteCpp {

/// A connection to one SQLite-format database file. The library constructs it, opens it
/// (through DataBase below) and destroys it, all on one thread.
class DB {
public:
    /// Creates a closed connection. Accesses no file. May throw std::bad_alloc.
    DB();

    /// Closes the connection if it is open. Throws nothing.
    ~DB();

    DB(const DB&) = delete;
    DB& operator=(const DB&) = delete;

    /// The state of an open connection, which only the platform defines, creates and reads.
    struct State;

    /// Null if there is no state.
    std::unique_ptr<State> state;
};

}  // namespace SqliteCpp

namespace Veloran::ReaderLib {

/// The reader database: the books, and the notes that the user made in them.
class DataBase : public SqliteCpp::DB {
public:
    /// Opens the handle on the database file `path`, replacing what was open before.
    /// `path` may be modified; the caller does not read it again. A handle stays open as
    /// long as its exporter lives. If another file replaces the one at `path` meanwhile (a
    /// backup is restored, or a synchronisation renames its copy), the platform must
    /// continue with the new file: see ImportExportDBV2. May wait while another process
    /// writes, but only for a limited time; then it fails. Returns true if the database is
    /// open. The library ignores the result. Calls of an ImportExportDBV2 on a handle that
    /// is not open must fail, never crash. They may retry the open, so that a database that
    /// was busy for a moment does not leave every later export without records.
    /// May throw exceptions derived from std::exception.
    bool open(std::string& path);
};

}  // namespace Veloran::ReaderLib
