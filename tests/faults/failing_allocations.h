// The allocations of this process, by `new`, SQLite and libxml2, counted and failed at
// will.
#pragma once

enum class Shortage { kOnce, kFromThenOn };

// Lets the `nth` allocation from here on fail, and with kFromThenOn all that follow it.
void failAllocation(long nth, Shortage shortage);

enum class Failed { kNothing, kNew, kOther };

// Lets allocations succeed again. Tells which one failed first.
Failed endShortage();

// Blocks that are allocated with `new` and not released.
long liveAllocations();
