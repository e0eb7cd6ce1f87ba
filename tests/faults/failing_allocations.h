// The allocations of this process, by `new`, SQLite and libxml2, failed at will.
#pragma once

enum class Shortage { kOnce, kFromThenOn };

// Lets the `nth` allocation from here on fail, and with kFromThenOn all that follow it.
void failAllocation(long nth, Shortage shortage);

enum class Failed { kNothing, kNew, kOther };

// Lets allocations succeed again. Tells which one failed first.
Failed endShortage();
