#include "connection.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <filesystem>
#include <new>
#include <stdexcept>

namespace host {
namespace {

constexpr int kBusyTimeoutMs = 5000;

template <class Action>
decltype(auto) naming(const std::string& path, Action action) {
    try {
        return action();
    } catch (const SQLite::Exception& error) {
        if (error.getErrorCode() == SQLITE_NOMEM) {
            throw std::bad_alloc();
        }
        throw std::runtime_error(path + ": " + error.what());
    }
}

SQLite::Database openFile(const std::string& path) {
    const auto directory = std::filesystem::path(path).parent_path();
    if (!directory.empty()) {
        std::filesystem::create_directories(directory);
    }
    return naming(path, [&] {
        // One thread at a time: no call needs a lock.
        return SQLite::Database(
            path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX,
            kBusyTimeoutMs);
    });
}

}  // namespace

bool Query::next() {
    return naming(path_, [this] { return statement_.executeStep(); });
}

int Query::run() {
    return naming(path_, [this] { return statement_.exec(); });
}

void Query::bind(int index, const std::optional<std::string>& text) {
    if (text) {
        bind(index, *text);
    } else {
        statement_.bind(index);
    }
}

void Query::bind(int index, const Blob& blob) {
    statement_.bindNoCopy(index, static_cast<const void*>(blob.bytes.data()),
                          static_cast<int>(blob.bytes.size()));
}

Connection::Connection(const std::string& path, const Schema& schema)
    : path_(path), database_(openFile(path)) {
    naming(path, [&] {
        database_.exec("PRAGMA foreign_keys = ON");
        database_.exec("PRAGMA temp_store = MEMORY");  // sorting needs no room on disk
        bringUpToDate(schema);
    });
}

void Connection::write(const std::function<void()>& work) {
    transact("BEGIN IMMEDIATE", work);
}

void Connection::read(const std::function<void()>& work) { transact("BEGIN", work); }

// Not SQLite::Transaction: when memory is too short for its destructor to roll back, that
// throws and ends the process.
void Connection::transact(const char* begin, const std::function<void()>& work) {
    SQLite::Statement& rollback = prepared("ROLLBACK");  // while there is memory
    naming(path_, [&] {
        database_.exec(begin);
        try {
            work();
            database_.exec("COMMIT");
        } catch (...) {
            rollback.tryExecuteStep();
            rollback.tryReset();
            throw;
        }
    });
}

void Connection::bringUpToDate(const Schema& schema) {
    std::int64_t version = schemaVersion();
    if (version == 0) {
        write([&] {
            version = schemaVersion();
            if (version == 0) {  // nobody created it while this waited for the lock
                database_.exec(schema.sql);
                version = schema.version;
                database_.exec("PRAGMA user_version = " + std::to_string(version));
            }
        });
    }
    if (version > schema.version) {
        throw std::runtime_error(path_ + ": written by a later version (schema " +
                                 std::to_string(version) + ", known is " +
                                 std::to_string(schema.version) + ")");
    }
}

std::int64_t Connection::schemaVersion() {
    return database_.execAndGet("PRAGMA user_version").getInt64();
}

SQLite::Statement& Connection::prepared(const char* sql) {
    const auto known = statements_.find(sql);
    if (known != statements_.end()) {
        return known->second;
    }
    return naming(path_, [&]() -> SQLite::Statement& {
        return statements_.emplace(sql, SQLite::Statement(database_, sql)).first->second;
    });
}

}  // namespace host
