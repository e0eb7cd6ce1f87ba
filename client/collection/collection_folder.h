// The folder that holds the collection, and the paths around it.
#pragma once

#include <string>

namespace client {

// Makes a relative path absolute, so that it keeps its meaning in another working
// directory.
void makeAbsolute(std::string& path);

enum class CollectionNeed { MayBeEmpty, MustExist };

// Makes the collection's folder the working directory, where the library finds it. An empty
// `folder` leaves the caller's. Throws UserError, also if a collection must exist and does
// not.
void enterCollection(const std::string& folder, CollectionNeed need);

// Returns whether there is a collection in the working directory.
bool collectionExists();

// Makes a collection where there is none: the folders of the databases, which are created
// when they are first opened, and a style sheet.
void prepareCollection();

}  // namespace client
