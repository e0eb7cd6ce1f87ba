// The folder of the collection, and paths relative to it.
#pragma once

#include <string>

namespace client {

// Makes the path absolute, so that it stays valid in another working directory.
void makeAbsolute(std::string& path);

enum class CollectionNeed { MayBeEmpty, MustExist };

// Makes `folder` the working directory, where the library opens the databases; an empty one
// keeps the current directory. Throws UserError if that fails, or if a collection must
// exist and does not.
void enterCollection(const std::string& folder, CollectionNeed need);

// Returns whether there is a collection in the working directory.
bool collectionExists();

// Creates the folders of the databases and a style sheet, if there is no collection. The
// databases are created when they are first opened.
void prepareCollection();

}  // namespace client
