// Finds the place for a page in its folder.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "client/pages/written_files.h"

namespace client {

struct PagePlace {
    std::string name;                                // of the file, in the folder
    std::string content = {};                        // the digest of the file there
    std::optional<WrittenFile> ours = std::nullopt;  // nullopt: nothing stands there
    std::string foreign = {};  // a file in the way that is not as the client wrote it
};

class PagePlaces {
public:
    // Lists the folder once. A folder that is missing or cannot be listed is empty.
    explicit PagePlaces(const std::string& folder);

    // Returns the first of the names of this stem whose file is ours, of the same book,
    // format and selection as `wanted`, and that nobody has changed; else a free name.
    PagePlace find(const std::string& stem, const WrittenFile& wanted);

    // Returns the place of the file `name`. Throws UserError, which calls it `displayPath`,
    // if a file stands there that is not ours.
    PagePlace findFile(const std::string& name, const WrittenFile& wanted,
                       const std::string& displayPath);

    PagePlace findFree(const std::string& stem) const;

    // Adds a name that is taken by now.
    void add(const std::string& name) { names_.insert(name); }

    // Notes files before they are moved, by the digest of their content. Returns the error,
    // or an empty text.
    std::string tryNote(const std::vector<std::pair<std::string, WrittenFile>>& files);

    // Removes the note of a file that was not moved.
    void tryForget(const std::string& content, const WrittenFile& file);

private:
    bool isOurs(PagePlace& place, const WrittenFile& wanted);
    std::optional<WrittenFile> noteOf(const PagePlace& place, const WrittenFile& wanted);

    const std::string folder_;
    std::set<std::string> names_;
    WrittenFiles written_;
};

}  // namespace client
