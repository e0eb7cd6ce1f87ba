// RapidJSON's reader and writer, which throw std::bad_alloc here.
#pragma once

#include <rapidjson/reader.h>
#include <rapidjson/writer.h>

#include <cstddef>
#include <cstdlib>
#include <new>

namespace host {

// Throws std::bad_alloc; RapidJSON's own allocator returns a null pointer, which is not
// checked.
class ThrowingAllocator {
public:
    static constexpr bool kNeedFree = true;

    static void* Malloc(std::size_t size) { return Realloc(nullptr, 0, size); }

    static void* Realloc(void* block, std::size_t /*before*/, std::size_t size) {
        if (size == 0) {
            Free(block);
            return nullptr;
        }
        void* resized = std::realloc(block, size);
        if (resized == nullptr) {
            throw std::bad_alloc();
        }
        return resized;
    }

    static void Free(void* block) { std::free(block); }
};

using JsonReader =
    rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, ThrowingAllocator>;

template <class Stream>
using JsonWriter =
    rapidjson::Writer<Stream, rapidjson::UTF8<>, rapidjson::UTF8<>, ThrowingAllocator>;

}  // namespace host
