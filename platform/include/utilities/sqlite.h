/// @file
/// A connection to a SQLite-format database, as the utilities library holds it.
#pragma once

namespace veloran::utilities {

/// A native connection. The owner of this object closes it. Not copied.
class Sqlite {
public:
    /// The native connection; the platform defines it.
    struct Connection;

    /// Closes the connection and makes handle() null. Only called while it is not null.
    void close();

    /// The native connection, or null while the connection is closed.
    Connection* handle() const { return handle_; }

    /// Replaces the native connection without closing the one before. Owned by this object
    /// from here on, in the sense that close() releases it.
    void setHandle(Connection* handle) { handle_ = handle; }

private:
    Connection* handle_ = nullptr;
};

}  // namespace veloran::utilities
