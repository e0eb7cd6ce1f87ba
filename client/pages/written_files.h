// The files that the client has written or imported, noted in the library database under
// the digest of their content.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "store/library_store.h"

namespace client {

// The origin of a file. All members except the name are digests, or words.
struct WrittenFile {
    static constexpr const char* kNoRecords = "none";

    std::string book;       // hash
    std::string format;     // such as "html"
    std::string selection;  // of its notes, and their order
    std::string inputs;     // digest of everything in it except the date; or kNoRecords
    std::string name = {};  // of the file, in its folder
    std::string run = {};   // name of the temporary folder that it was written in

    bool hasRecords() const { return inputs != kNoRecords; }
    bool isOfSame(const WrittenFile& other) const {
        return book == other.book && format == other.format && selection == other.selection;
    }
};

// Every failure is an exception of the std::runtime_error family.
class WrittenFiles {
public:
    WrittenFiles();

    // Returns the note of a file of this content and name; nullopt if there is none.
    std::optional<WrittenFile> find(const std::string& content, const std::string& name);

    // Notes these files, by the digest of their content, in one transaction.
    void note(const std::vector<std::pair<std::string, WrittenFile>>& files);

    // Removes the note of a file that was not moved to its place.
    void forget(const std::string& content, const WrittenFile& file);

    // Notes that files of this content were read, unless they are noted already.
    void noteImported(const std::string& content);

    // Returns whether version 1.1 may have written the file at `path`: it set the library's
    // mark, and noted nothing.
    bool hasMarkAlone(const std::string& content, const std::string& path);

private:
    std::string notes(const std::string& content);
    void note(const std::string& content, const WrittenFile& file);

    host::LibraryStore library_;
};

}  // namespace client
