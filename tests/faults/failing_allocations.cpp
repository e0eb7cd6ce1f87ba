#include "failing_allocations.h"

#include <libxml/xmlmemory.h>
#include <malloc.h>
#include <sqlite3.h>

#include <atomic>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <new>
#include <stdexcept>

namespace {

constexpr long kNever = LONG_MAX;

std::atomic<long> left{kNever};  // allocations until the one that fails
bool failsOn = false;
Failed first = Failed::kNothing;

bool fails(Failed kind) {
    if (left == kNever) {
        return false;
    }
    const long before = left--;
    first = before == 1 ? kind : first;
    return before == 1 || (before < 1 && failsOn);
}

void* allocate(Failed kind, std::size_t size) {
    return fails(kind) ? nullptr : std::malloc(size);
}

void* allocateElsewhere(std::size_t size) { return allocate(Failed::kOther, size); }

void* reallocate(void* block, std::size_t size) {
    return fails(Failed::kOther) ? nullptr : std::realloc(block, size);
}

char* duplicate(const char* text) { return fails(Failed::kOther) ? nullptr : strdup(text); }

bool interceptLibraries() {
    sqlite3_mem_methods methods = {};
    methods.xMalloc = [](int size) {
        return allocateElsewhere(static_cast<std::size_t>(size));
    };
    methods.xFree = std::free;
    methods.xRealloc = [](void* block, int size) {
        return reallocate(block, static_cast<std::size_t>(size));
    };
    methods.xSize = [](void* block) { return static_cast<int>(malloc_usable_size(block)); };
    methods.xRoundup = [](int size) { return (size + 7) & ~7; };
    methods.xInit = [](void*) { return SQLITE_OK; };
    methods.xShutdown = [](void*) {};
    return sqlite3_config(SQLITE_CONFIG_MALLOC, &methods) == SQLITE_OK &&
           xmlMemSetup(std::free, allocateElsewhere, reallocate, duplicate) == 0;
}

const bool intercepted = interceptLibraries();  // before either is used

}  // namespace

void failAllocation(long nth, Shortage shortage) {
    if (!intercepted) {
        throw std::logic_error("cannot intercept allocations of the libraries");
    }
    failsOn = shortage == Shortage::kFromThenOn;
    first = Failed::kNothing;
    left = nth;
}

Failed endShortage() {
    left = kNever;
    return first;
}

void* operator new(std::size_t size) {
    void* block = allocate(Failed::kNew, size == 0 ? 1 : size);
    return block == nullptr ? throw std::bad_alloc() : block;
}

void operator delete(void* block) noexcept { std::free(block); }

void operator delete(void* block, std::size_t /*size*/) noexcept { std::free(block); }
