// Writes the pictures that a listing links to.
#pragma once

#include <string>
#include <utility>

#include "client/listings/listing.h"

namespace client {

class PictureFolder {
public:
    explicit PictureFolder(FolderForPictures folder) : folder_(std::move(folder)) {}

    // Writes the picture into a file named after the title and the picture's content,
    // unless that file exists. Never replaces a file. Returns the destination of a link to
    // it; empty if there is no picture or no folder. Throws UserError.
    std::string add(const std::string& title, const std::string& picture) const;

private:
    FolderForPictures folder_;
};

}  // namespace client
