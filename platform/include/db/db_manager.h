/// @file
/// The library database: what the device knows of every book and file on it.
#pragma once

#include <filesystem>
#include <string>

namespace veloran::db {

/// One instance serves the process, from any thread: the platform serialises its use.
/// Any call may throw an exception derived from std::exception when the database cannot
/// be read; finding nothing is not such a failure. Any call may wait while another process
/// writes; a wait must end, with an exception (of SetFileProp: false) if need be.
class DbManager {
public:
    /// Properties of a file, by number; their meaning is the platform's.
    enum class FileProp : int {};

    /// The instance. Never null, and valid until the process exits.
    static DbManager* Instance();

    /// The identifier of the book whose uid of the given kind is `uid` (raw bytes), or a
    /// negative number when there is none. Kind 1 is the fast hash.
    long long GetBookIdByUid(int kind, const std::string& uid);

    /// Writes the book's title and author, UTF-8, into the two strings, which are not
    /// null and arrive empty. What is not known stays empty.
    void GetBookTitleAndAuthor(long long bookId, std::string* title, std::string* author);

    /// The path of the book's file; empty when there is none.
    std::filesystem::path GetBookLocalFilePath(long long bookId);

    /// Records `value` as the property `prop` of the file with this fast hash, in place of
    /// an earlier value. `hash` may be empty (the file could not be hashed): nothing is
    /// recorded then. Returns whether it was recorded. A database that cannot be written
    /// gives false or an exception; false spares callers in C, who cannot catch.
    bool SetFileProp(const std::string& hash, FileProp prop, const std::string& value);
};

}  // namespace veloran::db
