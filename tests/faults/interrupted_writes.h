// SQLite's changes to files in this process, counted and cut short at will.
#pragma once

enum class Interruption {
    kDiskFull,  // no write succeeds any more
    kKill,      // the process is killed
};

// From here on counts writes and removals of files. The interruption comes in the middle of
// the `nth`; none does when it is 0.
void interruptOperation(int nth, Interruption interruption);

// Lets operations pass again. Returns how many there were.
int endInterruption();
