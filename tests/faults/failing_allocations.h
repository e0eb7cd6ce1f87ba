// The allocations of this process with `new`, counted and failed at will.
#pragma once

enum class Shortage { kOnce, kFromThenOn };

// Lets the `nth` allocation from here on fail, and with kFromThenOn all that follow it.
void failAllocation(long nth, Shortage shortage);

// Lets allocations succeed again. Tells whether one had failed.
bool endShortage();

// Blocks that are allocated and not released.
long liveAllocations();
