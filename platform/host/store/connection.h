// A connection to a database file: how it is opened, and its prepared statements.
//
// The journal is SQLite's default, for rollback: a write-ahead log would need room for
// files of its own even to read, so that a full disk would lock the user out of the notes.
#pragma once

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

#include "files/file_identity.h"

namespace host {

// What a database file holds: `sql` creates it, `version` is kept in user_version.
struct Schema {
    int version;
    const char* sql;
};

// Bytes that go into the database as a BLOB.
struct Blob {
    const std::string& bytes;
};

// One execution of a prepared statement, which is reset when this object is destroyed.
// Bound values must live until then.
class Query {
public:
    // Binds `values` to the statement's parameters, in order. `path` is the database's, for
    // the messages of failures.
    template <class... Values>
    Query(SQLite::Statement& statement, const std::string& path, const Values&... values)
        : statement_(statement), path_(path) {
        bind(values...);
    }
    ~Query() { statement_.tryReset(); }
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    // Binds the parameters that follow those that are bound.
    template <class... Values>
    void bind(const Values&... values) {
        (bindTo(++bound_, values), ...);
    }

    // Advances to the next row; false when there is none.
    bool next();

    // Executes a statement that gives no rows, and returns how many rows it changed.
    int run();

    std::int64_t integer(int column) { return statement_.getColumn(column).getInt64(); }
    std::string bytes(int column) { return statement_.getColumn(column).getString(); }
    bool isNull(int column) { return statement_.getColumn(column).isNull(); }

private:
    void bindTo(int index, std::int64_t value) { statement_.bind(index, value); }
    void bindTo(int index, const std::string& text);
    void bindTo(int index, const std::optional<std::string>& text);
    void bindTo(int index, const Blob& blob);
    void requireRoomFor(const std::string& value) const;

    SQLite::Statement& statement_;
    const std::string& path_;
    int bound_ = 0;
};

// Serves one thread at a time. Every failure is a std::runtime_error that names the file,
// but for std::bad_alloc.
class Connection {
public:
    // Opens the database at `path`. Missing directories, the file and its tables are
    // created; several processes may do that at once. A file of another schema version, or
    // with tables of somebody else, is a failure.
    Connection(const std::string& path, const Schema& schema);

    // The path of the file, which does not depend on the working directory any more.
    const std::string& file() const { return file_; }

    // Whether the file at that path was replaced or removed.
    bool isReplaced();

    // The statement `sql`, which is compiled once and lives in static storage, with
    // `values` bound to its parameters in order.
    template <class... Values>
    Query query(const char* sql, const Values&... values) {
        return Query(prepared(sql), path_, values...);
    }

    // The identifier of the row that was inserted last.
    std::int64_t lastInsertedId() const { return database_.getLastInsertRowid(); }

    // Runs `work` in one transaction, undone when it throws. A writing one holds the write
    // lock from the start; a reading one sees one state of the database throughout.
    void write(const std::function<void()>& work);
    void read(const std::function<void()>& work);

private:
    void transact(const char* begin, const std::function<void()>& work);
    void createTables(const Schema& schema);
    void checkVersion(const Schema& schema);
    std::int64_t number(const char* query);
    SQLite::Statement& prepared(const char* sql);

    std::string path_;
    std::string file_;
    SQLite::Database database_;
    std::optional<FileIdentity> identity_;
    std::map<const char*, SQLite::Statement> statements_;
};

}  // namespace host
