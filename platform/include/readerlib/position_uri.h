/// @file
/// Positions in a book, as the reader application writes them: URIs.
#pragma once

#include <string>

namespace Veloran::ReaderLib {

/// Finds the page number that the position URI `uri` names; `uri` may be empty.
/// Returns true and stores the number, with its fraction, in `page` if there is one.
/// Otherwise returns false; `page` is then unspecified. Has no state and may be called from
/// any thread. May throw std::bad_alloc.
bool extractPageFromnURI(const std::string& uri, double& page);

}  // namespace Veloran::ReaderLib
