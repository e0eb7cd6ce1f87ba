/// @file
/// The library database: the title, author and path of each book, and properties of files.
#pragma once

#include <filesystem>
#include <string>

namespace veloran::db {

/// One instance serves the process, from any thread: the platform serialises its use. Any
/// call may throw an exception derived from std::exception if the database cannot be read;
/// an empty result is not a failure. Any call may wait while another process writes, but
/// only for a limited time; then it fails with an exception (SetFileProp: with false).
class DbManager {
public:
    /// Properties of a file, by number; the platform defines them.
    enum class FileProp : int {};

    /// Returns the instance. Never null, and valid until the process exits.
    static DbManager* Instance();

    /// Returns the identifier of the book whose uid of the given kind is `uid` (raw bytes),
    /// or a negative number if there is none. Kind 1 is the fast hash.
    long long GetBookIdByUid(int kind, const std::string& uid);

    /// Writes the book's title and author, UTF-8, into the two strings, which are not null
    /// and are passed empty. A string stays empty if the value is not known.
    void GetBookTitleAndAuthor(long long bookId, std::string* title, std::string* author);

    /// Returns the path of the book's file; empty if there is none.
    std::filesystem::path GetBookLocalFilePath(long long bookId);

    /// Stores `value` as the property `prop` of the file with this fast hash, replacing an
    /// earlier value. `hash` is empty if the file could not be hashed; nothing is stored
    /// then. Returns whether the value was stored. If the database cannot be written,
    /// returns false or throws; false is better for callers in C, which cannot catch.
    bool SetFileProp(const std::string& hash, FileProp prop, const std::string& value);
};

}  // namespace veloran::db
