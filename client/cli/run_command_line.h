// What the user can type.
#pragma once

namespace client {

// Runs the command that the arguments name. Returns 0, or 2 when they are not understood,
// which has been explained on standard error then. Throws what the command throws.
int runCommandLine(int argc, const char* const* argv);

}  // namespace client
