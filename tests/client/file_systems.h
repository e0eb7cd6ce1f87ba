// File systems that lack the flags of renameat2, or hard links.
#pragma once

namespace file_system {

// While false, the system calls of this program fail as they do on memory cards.
inline bool knowsRenameFlags = true;
inline bool knowsLinks = true;

}  // namespace file_system
