/// @file
/// Queries of the reader database.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "utilities/note.h"
#include "utilities/sqlite.h"

namespace veloran::utilities {

/// The reader database's record of a book. The library reads `title` and `path`; the
/// members called unread belong to the platform.
struct Book {
    std::int64_t unread1 = 0;  ///< the platform's
    std::string title;         ///< of the book; empty if it has none
    std::string unread3;       ///< the platform's
    std::string path;          ///< of the book's file
    std::string unread5;       ///< the platform's
    std::int32_t unread6 = 0;  ///< the platform's
};

/// A manager has its own connection to the reader database and serves one thread at a
/// time. Any query may throw an exception derived from std::exception if the database
/// cannot be read; an empty result is not a failure. A query may wait while another process
/// writes, but only for a limited time; then it throws.
/// A query that takes a book hash reads the file that is at the database's path when it is
/// called, even if that is not the file that was opened. A query that takes an identifier
/// or a note key reads the file that it came from.
class ReaderDbManager {
public:
    /// Creates a manager ready for queries. It may connect now or at the first query; a
    /// database that cannot be opened is reported by the queries.
    ReaderDbManager();

    /// Closes the connection if it is open, then destroys the stored callable.
    /// Lets no exception out.
    ~ReaderDbManager() {
        try {
            if (connection_.handle() != nullptr) {
                connection_.close();
            }
        } catch (...) {  ///< a destructor must not throw; the connection leaks
        }
    }

    ReaderDbManager(const ReaderDbManager&) = delete;
    ReaderDbManager& operator=(const ReaderDbManager&) = delete;

    /// Returns the item identifier of the book with this fast hash (hexadecimal text), or
    /// -1 if there is none.
    long long getItemId(const std::string& bookHash);

    /// Returns the books with this fast hash, best match first; empty if there is none.
    std::vector<Book> getBookByFastHash(const std::string& bookHash);

    /// Returns the fast hash of the book with this item identifier; empty if there is none.
    std::string getBookFastHashById(long long itemId);

    /// Returns the keys of all notes of the book with this fast hash, in the database's
    /// order; empty if there are none. The first member of a pair is the note key for
    /// getNote; the second is not read by the library, which always passes true for `flag`.
    std::vector<std::pair<std::string, unsigned long long>> getBookNotesHashUUIDs(
        const std::string& bookHash, bool flag);

    /// Returns the note with this key; a note without tags and with identifier 0 if there
    /// is none. The note may be as old as its key, because a platform may read several
    /// notes at once.
    Note getNote(const std::string& noteKey);

private:
    std::function<void(const std::string&)> onError_;
    Sqlite connection_;
};

}  // namespace veloran::utilities
