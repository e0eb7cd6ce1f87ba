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

std::atomic<long> live{0};
std::atomic<long> left{kNever};  // allocations up to the one that fails
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

void* allocate(std::size_t size) {
    return fails(Failed::kOther) ? nullptr : std::malloc(size);
}

void* reallocate(void* block, std::size_t size) {
    return fails(Failed::kOther) ? nullptr : std::realloc(block, size);
}

char* duplicate(const char* text) { return fails(Failed::kOther) ? nullptr : strdup(text); }

bool interceptLibraries() {
    sqlite3_mem_methods methods = {};
    methods.xMalloc = [](int size) { return allocate(static_cast<std::size_t>(size)); };
    methods.xFree = std::free;
    methods.xRealloc = [](void* block, int size) {
        return reallocate(block, static_cast<std::size_t>(size));
    };
    methods.xSize = [](void* block) { return static_cast<int>(malloc_usable_size(block)); };
    methods.xRoundup = [](int size) { return (size + 7) & ~7; };
    methods.xInit = [](void*) { return SQLITE_OK; };
    methods.xShutdown = [](void*) {};
    return sqlite3_config(SQLITE_CONFIG_MALLOC, &methods) == SQLITE_OK &&
           xmlMemSetup(std::free, allocate, reallocate, duplicate) == 0;
}

const bool intercepted = interceptLibraries();  // before either is used

}  // namespace

void failAllocation(long nth, Shortage shortage) {
    if (!intercepted) {
        throw std::logic_error("the libraries allocate by other means");
    }
    failsOn = shortage == Shortage::kFromThenOn;
    first = Failed::kNothing;
    left = nth;
}

Failed endShortage() {
    left = kNever;
    return first;
}

long liveAllocations() { return live; }

void* operator new(std::size_t size) {
    void* block = fails(Failed::kNew) ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    ++live;
    return block;
}

void operator delete(void* block) noexcept {
    live -= block == nullptr ? 0 : 1;
    std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept { operator delete(block); }
