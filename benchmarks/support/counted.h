// Limits the count of callgrind to one job.
#pragma once

#include <valgrind/callgrind.h>

template <class Job>
void counted(Job job) {
    CALLGRIND_TOGGLE_COLLECT;
    job();
    CALLGRIND_TOGGLE_COLLECT;
}
