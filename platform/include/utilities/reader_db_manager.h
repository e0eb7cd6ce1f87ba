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
    std::string title;         ///< of the book; empty when it has none
    std::string unread3;       ///< the platform's
    std::string path;          ///< of the book's file
    std::string unread5;       ///< the platform's
    std::int32_t unread6 = 0;  ///< the platform's
};

/// A manager has its own connection to the reader database and serves one thread at a
/// time. Any query may throw an exception derived from std::exception when the database
/// cannot be read; finding nothing is not such a failure. A query may wait while another
/// process writes; a wait must end, with an exception if need be.
/// A query that takes a book hash reads the file that is at the database's path when it is
/// called, even if that is not the file that was opened. A query that takes an identifier
/// or a note key reads the file that it came from.
class ReaderDbManager {
public:
    /// A manager ready for queries. Whether it connects now or at the first query is the
    /// platform's choice; a database that cannot be opened is reported by the queries.
    ReaderDbManager();

    /// Closes the connection if it is open, then destroys the stored callable.
    /// Lets no exception out.
    ~ReaderDbManager() {
        try {
            if (connection_.handle() != nullptr) {
                connection_.close();
            }
        } catch (...) {  ///< a destructor must not throw; the connection is abandoned
        }
    }

    ReaderDbManager(const ReaderDbManager&) = delete;
    ReaderDbManager& operator=(const ReaderDbManager&) = delete;

    /// The item identifier of the book with this fast hash (hexadecimal text), or -1 when
    /// the database does not know the book.
    long long getItemId(const std::string& bookHash);

    /// The books with this fast hash, best match first; empty when there is none.
    std::vector<Book> getBookByFastHash(const std::string& bookHash);

    /// The fast hash of the book with this item identifier; empty when there is none.
    std::string getBookFastHashById(long long itemId);

    /// The keys of all notes of the book with this fast hash, in the database's order;
    /// empty when there are none. The first member of a pair is the note key for getNote;
    /// the second is not read by the library, which always passes true for `flag`.
    std::vector<std::pair<std::string, unsigned long long>> getBookNotesHashUUIDs(
        const std::string& bookHash, bool flag);

    /// The note with this key; a note without tags and with identifier 0 when there is
    /// none. It is as the database has it now, or had it at any moment since the key was
    /// handed out: a platform may read several notes at once.
    Note getNote(const std::string& noteKey);

private:
    std::function<void(const std::string&)> onError_;
    Sqlite connection_;
};

}  // namespace veloran::utilities
