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
    /// A closed connection. Touches no file. May throw std::bad_alloc.
    DB();

    /// Closes the connection if it is open. Throws nothing.
    ~DB();

    DB(const DB&) = delete;
    DB& operator=(const DB&) = delete;

    /// What the platform keeps for an open connection; defined, created and read by the
    /// platform alone.
    struct State;

    /// Null while there is nothing to keep.
    std::unique_ptr<State> state;
};

}  // namespace SqliteCpp

namespace Veloran::ReaderLib {

/// The reader database: the books, and the notes that the user made in them.
class DataBase : public SqliteCpp::DB {
public:
    /// Opens the handle on the database file `path`, replacing what was open before.
    /// `path` may be modified; the caller does not look at it again.
    /// A handle stays open for as long as its exporter lives. When another file takes the
    /// place of the one at `path` meanwhile (a backup is put back, a synchronisation
    /// renames its copy), the platform must go on with the new file: see ImportExportDBV2.
    /// May wait while another process writes; a wait must end, with failure if need be.
    /// Returns true when the database is open. The library ignores the result: an
    /// ImportExportDBV2 on a handle that is not open must answer its calls with
    /// failure, never crash. It may try again to open it, so that a database that was busy
    /// for a moment does not leave every later export without records.
    /// May throw exceptions derived from std::exception.
    bool open(std::string& path);
};

}  // namespace Veloran::ReaderLib
