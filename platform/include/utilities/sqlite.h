/// @file
/// A connection to a SQLite-format database.
#pragma once

namespace veloran::utilities {

/// A native connection. The owner of this object closes it. Not copied.
class Sqlite {
public:
    /// The native connection; the platform defines it.
    struct Connection;

    /// Closes the connection and makes handle() null. Only called while it is not null.
    void close();

    /// Returns the native connection, or null if it is closed.
    Connection* handle() const { return handle_; }

    /// Replaces the native connection without closing the old one. close() releases the new
    /// one.
    void setHandle(Connection* handle) { handle_ = handle; }

private:
    Connection* handle_ = nullptr;
};

}  // namespace veloran::utilities
