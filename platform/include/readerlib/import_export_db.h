/// @file
/// The engine that turns records of the reader database into a portable payload and back.
#pragma once

#include <map>
#include <set>
#include <string>

namespace Veloran::ReaderLib {

class DataBase;

/// One engine serves one export or one import, on one thread. Every member except the
/// destructor may throw exceptions derived from std::exception. Exports and imports read
/// and write the file that is at the handle's path when they are called, even if it is not
/// the one that was opened. They may wait while another process writes, but only for a
/// limited time; then they fail.
class ImportExportDBV2 {
public:
    /// Creates an engine on `database`, which it does not own and which must outlive it.
    /// `database` is never null but may be closed. `limit` and `mode` configure the
    /// engine; the library always passes 10 and 3, for exports and imports alike.
    ImportExportDBV2(DataBase* database, unsigned long long limit, int mode);

    /// Releases the containers in reverse order of their declaration.
    ~ImportExportDBV2() = default;

    ImportExportDBV2(const ImportExportDBV2&) = delete;
    ImportExportDBV2& operator=(const ImportExportDBV2&) = delete;

    /// Restricts the exports that follow to the notes with these identifiers
    /// (Note::noteId). An empty set lifts the restriction: every note is exported.
    /// Identifiers that belong to no note are ignored.
    void set_export_bookmark_ids(const std::set<unsigned long long>& ids);

    /// Appends to `out` the payload that holds the books with the given item
    /// identifiers and their (selected) notes: bytes of any length and content.
    /// Returns false, with `out` unspecified, if there is no payload; the document then has
    /// no records, and the library reports nothing.
    bool books_export(std::string& out, const std::set<unsigned long long>& books);

    /// Reads the exported document at `path`, takes the payload from its first
    /// `script` element of type "application/x-veloran-dbdump" (Base64, in lines of
    /// 72 characters) and merges the payload's records into the database.
    /// Returns zero or more on success (the platform defines the meaning of positive
    /// numbers) and a negative number on failure.
    int books_import(const std::string& path);

private:
    DataBase* database_;
    // A platform may leave these unused.
    [[maybe_unused]] unsigned long long limit_;
    [[maybe_unused]] int mode_;
    std::set<unsigned long long> exportBookIds_;
    std::set<unsigned long long> exportBookmarkIds_;
    std::set<std::string> importedHashes_;
    std::map<std::string, std::string> importedPaths_;
};

}  // namespace Veloran::ReaderLib
