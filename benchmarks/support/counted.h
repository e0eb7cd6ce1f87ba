// Programs that do one job, for callgrind to count its instructions and nothing else.
#pragma once

#include <valgrind/callgrind.h>

template <class Job>
void counted(Job job) {
    CALLGRIND_TOGGLE_COLLECT;
    job();
    CALLGRIND_TOGGLE_COLLECT;
}
