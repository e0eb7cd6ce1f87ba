// A connection to a database file, and its prepared statements.
//
// The journal is SQLite's default, for rollback. A write-ahead log needs disk space even to
// read, so that a full disk would make the notes unreadable.
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

// The tables of a database file: `sql` creates them, user_version holds `version`.
struct Schema {
    int version;
    const char* sql;
};

// Bytes to be stored as a BLOB.
struct Blob {
    const std::string& bytes;
};

// One execution of a prepared statement, which is reset when this object is destroyed.
// Bound values must live until then.
class Query {
public:
    // Binds `values` to the statement's parameters, in order. `path` is the database's, for
    // error messages.
    template <class... Values>
    Query(SQLite::Statement& statement, const std::string& path, const Values&... values)
        : statement_(statement), path_(path) {
        bind(values...);
    }
    ~Query() { statement_.tryReset(); }
    Query(const Query&) = delete;
    Query& operator=(const Query&) = delete;

    // Binds `values` to the next parameters.
    template <class... Values>
    void bind(const Values&... values) {
        (bindTo(++bound_, values), ...);
    }

    // Advances to the next row; returns false if there is none.
    bool next();

    // Executes a statement without result rows. Returns the number of rows that it changed.
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

// Serves one thread at a time. Every failure is std::bad_alloc or a std::runtime_error that
// names the file, or its folder if that denies access.
class Connection {
public:
    // Opens the database at `path`. Creates missing directories, the file and its tables;
    // several processes may do that at once. Fails for another schema version, or tables of
    // another program.
    Connection(const std::string& path, const Schema& schema);

    // Returns the absolute path of the file.
    const std::string& file() const { return file_; }

    // Returns whether the file at that path was replaced or removed.
    bool isReplaced();

    // Returns the statement `sql`, with `values` bound to its parameters in order. It is
    // compiled once for each pointer, so `sql` must be in static storage.
    template <class... Values>
    Query query(const char* sql, const Values&... values) {
        return Query(prepared(sql), path_, values...);
    }

    // Returns the identifier of the row that was inserted last.
    std::int64_t lastInsertedId() const { return database_.getLastInsertRowid(); }

    // Calls `work` in one transaction, which is rolled back if it throws. write() holds the
    // write lock from the start; in read(), all queries see one state of the database.
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
