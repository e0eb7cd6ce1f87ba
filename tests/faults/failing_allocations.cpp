#include "failing_allocations.h"

#include <atomic>
#include <climits>
#include <cstdlib>
#include <new>

namespace {

constexpr long kNever = LONG_MAX;

std::atomic<long> live{0};
std::atomic<long> left{kNever};  // allocations up to the one that fails
bool failsOn = false;

bool fails() {
    if (left == kNever) {
        return false;
    }
    const long before = left--;
    return before == 1 || (before < 1 && failsOn);
}

}  // namespace

void failAllocation(long nth, Shortage shortage) {
    failsOn = shortage == Shortage::kFromThenOn;
    left = nth;
}

bool endShortage() { return left.exchange(kNever) <= 0; }

long liveAllocations() { return live; }

void* operator new(std::size_t size) {
    void* block = fails() ? nullptr : std::malloc(size == 0 ? 1 : size);
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
