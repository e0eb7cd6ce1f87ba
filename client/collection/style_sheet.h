// The style sheet of new collections.
#pragma once

namespace client {

extern const char* const kStyleSheet;

}  // namespace client
