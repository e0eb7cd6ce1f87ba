#include "store/connection.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <new>
#include <stdexcept>
#include <system_error>

#include "store/records.h"

namespace host {
namespace {

constexpr int kBusyTimeoutMs = 5000;

// Returns the path and the system's error if the file or its folder denies access; else
// empty. SQLite's own messages do not contain that error.
std::string deniedAccess(const std::string& path) {
    const std::string folder = std::filesystem::path(path).parent_path().string();
    for (const std::string& place : {path, folder}) {
        if (access(place.c_str(), R_OK | W_OK) != 0 && errno != ENOENT) {
            return place + ": " + std::generic_category().message(errno);
        }
    }
    return {};
}

std::string describe(const SQLite::Exception& error, const std::string& path) {
    const int code = error.getErrorCode();
    const std::string denied =
        code == SQLITE_READONLY || code == SQLITE_CANTOPEN ? deniedAccess(path) : "";
    return denied.empty() ? path + ": " + error.what() : denied;
}

template <class Action>
decltype(auto) withPath(const std::string& path, Action action) {
    try {
        return action();
    } catch (const SQLite::Exception& error) {
        if (error.getErrorCode() == SQLITE_NOMEM) {
            throw std::bad_alloc();
        }
        throw std::runtime_error(describe(error, path));
    }
}

SQLite::Database openFile(const std::string& path) {
    const auto directory = std::filesystem::path(path).parent_path();
    if (!directory.empty()) {
        std::filesystem::create_directories(directory);
    }
    return withPath(path, [&] {
        // no lock: only one thread uses it
        return SQLite::Database(
            path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE | SQLite::OPEN_NOMUTEX,
            kBusyTimeoutMs);
    });
}

}  // namespace

bool Query::next() {
    return withPath(path_, [this] { return statement_.executeStep(); });
}

int Query::run() {
    return withPath(path_, [this] { return statement_.exec(); });
}

// Throws if the size does not fit into an int, because SQLite would truncate the value.
void Query::requireRoomFor(const std::string& value) const {
    if (value.size() > kMaxValueSize) {
        throw std::runtime_error(path_ + ": a value of " + std::to_string(value.size()) +
                                 " bytes is too large (at most " +
                                 std::to_string(kMaxValueSize) + ")");
    }
}

void Query::bindTo(int index, const std::string& text) {
    requireRoomFor(text);
    statement_.bindNoCopy(index, text);
}

void Query::bindTo(int index, const std::optional<std::string>& text) {
    if (text) {
        bindTo(index, *text);
    } else {
        statement_.bind(index);
    }
}

void Query::bindTo(int index, const Blob& blob) {
    requireRoomFor(blob.bytes);
    statement_.bindNoCopy(index, static_cast<const void*>(blob.bytes.data()),
                          static_cast<int>(blob.bytes.size()));
}

Connection::Connection(const std::string& path, const Schema& schema)
    : path_(path),
      file_(std::filesystem::absolute(path).string()),
      database_(openFile(path)),
      identity_(identityOf(file_)) {
    withPath(path, [&] {
        database_.exec("PRAGMA temp_store = MEMORY");  // sorting needs no disk space
        createTables(schema);
        checkVersion(schema);
    });
}

bool Connection::isReplaced() {
    // SQLite compares only the inode, but that of the file that it opened. Together the
    // checks also detect a file that was replaced before its identity was read.
    int moved = 0;
    sqlite3_file_control(database_.getHandle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    return moved != 0 || identityOf(file_) != identity_;
}

void Connection::write(const std::function<void()>& work) {
    transact("BEGIN IMMEDIATE", work);
}

void Connection::read(const std::function<void()>& work) { transact("BEGIN", work); }

// Not SQLite::Transaction, whose destructor throws, and so ends the process, if there is no
// memory for the rollback.
void Connection::transact(const char* begin, const std::function<void()>& work) {
    SQLite::Statement& rollback = prepared("ROLLBACK");  // prepared while there is memory
    withPath(path_, [&] {
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

void Connection::createTables(const Schema& schema) {
    const auto isEmpty = [this] {
        return number("PRAGMA user_version") == 0 &&
               number("SELECT count(*) FROM sqlite_master") == 0;
    };
    if (isEmpty()) {
        write([&] {
            if (isEmpty()) {  // not created meanwhile
                database_.exec(schema.sql);
                database_.exec("PRAGMA user_version = " + std::to_string(schema.version));
            }
        });
    }
}

void Connection::checkVersion(const Schema& schema) {
    const std::int64_t version = number("PRAGMA user_version");
    if (version == schema.version) {
        return;
    }
    const std::string writer = version == 0               ? "another program"
                               : version > schema.version ? "a later version"
                                                          : "an earlier version";
    throw std::runtime_error(path_ + ": written by " + writer + " (schema " +
                             std::to_string(version) + ", known is " +
                             std::to_string(schema.version) + ")");
}

std::int64_t Connection::number(const char* query) {
    return database_.execAndGet(query).getInt64();
}

SQLite::Statement& Connection::prepared(const char* sql) {
    const auto known = statements_.find(sql);
    if (known != statements_.end()) {
        return known->second;
    }
    return withPath(path_, [&]() -> SQLite::Statement& {
        return statements_.emplace(sql, SQLite::Statement(database_, sql)).first->second;
    });
}

}  // namespace host
