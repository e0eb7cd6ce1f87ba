// Writes the pictures that a listing links to.
#pragma once

#include <string>

#include "client/listings/listing.h"

namespace client {

// Writes the picture into a file named after the title and the picture's content, unless
// that file exists. Never replaces a file. Returns the destination of a link to it; empty
// if there is no picture or no folder. Throws UserError.
std::string addPicture(const std::string& picture, const std::string& title,
                       const FolderForPictures& folder);

}  // namespace client
