// The library's handle, held through its C interface.
#pragma once

#include <memory>
#include <string>

#include "notes_export/notes_export.h"

namespace client {

class Exporter {
public:
    // An empty directory means the collection's own.
    explicit Exporter(const std::string& directory = {});

    void setDirectory(const std::string& directory);
    const std::string& directory() const { return directory_; }

    // Returns the path of the file that an export of the book would write now.
    std::string fileName(const std::string& hash) const;

    notes_exporter* handle() const { return handle_.get(); }

private:
    std::unique_ptr<notes_exporter, decltype(&free_notes_exporter)> handle_;
    std::string directory_;
};

}  // namespace client
