// Failures of the allocations of `new`, SQLite and libxml2 in this process.
#pragma once

enum class Shortage { kOnce, kFromThenOn };

// Makes the `nth` allocation from now on fail, and with kFromThenOn all later ones.
void failAllocation(long nth, Shortage shortage);

enum class Failed { kNothing, kNew, kOther };

// Makes allocations succeed again. Returns which kind failed first.
Failed endShortage();
