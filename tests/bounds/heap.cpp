// The size of a block stands in front of it, in as much room as its alignment takes.
#include "bounds/heap.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>

namespace nurl::test {

namespace {

struct Heap {
    std::size_t live = 0;
    std::size_t peak = 0;
};

Heap& heap() noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): operator new has no
    // object
    static constinit Heap the_one;
    return the_one;
}

constexpr std::size_t usual = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

constexpr std::size_t number(std::align_val_t alignment) noexcept {
    return std::max(usual, static_cast<std::size_t>(alignment));
}

// NOLINTBEGIN(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): these are the owners
void* allocate(std::size_t size, std::size_t alignment) noexcept {
    const std::size_t blocks = (size + alignment - 1) / alignment + 1;
    if (blocks <= size / alignment) return nullptr;
    void* const block = std::aligned_alloc(alignment, blocks * alignment);
    if (block == nullptr) return nullptr;
    std::memcpy(block, &size, sizeof size);
    heap().live += size;
    heap().peak = std::max(heap().peak, heap().live);
    return static_cast<std::byte*>(block) + alignment;
}

void release(void* given, std::size_t alignment) noexcept {
    if (given == nullptr) return;
    void* const block = static_cast<std::byte*>(given) - alignment;
    std::size_t size = 0;
    std::memcpy(&size, block, sizeof size);
    heap().live -= size;
    std::free(block);
}
// NOLINTEND(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)

void* allocate_or_throw(std::size_t size, std::size_t alignment) {
    if (void* const block = allocate(size, alignment)) return block;
    throw std::bad_alloc();
}

}  // namespace

std::size_t live_bytes() noexcept { return heap().live; }

std::size_t peak_bytes() noexcept { return heap().peak; }

void forget_peak() noexcept { heap().peak = heap().live; }

}  // namespace nurl::test

using nurl::test::allocate;
using nurl::test::allocate_or_throw;
using nurl::test::number;
using nurl::test::release;
using nurl::test::usual;

// NOLINTBEGIN(misc-new-delete-overloads): each has its counterpart further down
void* operator new(std::size_t size) { return allocate_or_throw(size, usual); }
void* operator new[](std::size_t size) { return allocate_or_throw(size, usual); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    return allocate_or_throw(size, number(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment) {
    return allocate_or_throw(size, number(alignment));
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return allocate(size, usual);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return allocate(size, usual);
}
void* operator new(std::size_t size, std::align_val_t alignment,
                   const std::nothrow_t& /*tag*/) noexcept {
    return allocate(size, number(alignment));
}
void* operator new[](std::size_t size, std::align_val_t alignment,
                     const std::nothrow_t& /*tag*/) noexcept {
    return allocate(size, number(alignment));
}

void operator delete(void* block) noexcept { release(block, usual); }
void operator delete[](void* block) noexcept { release(block, usual); }
void operator delete(void* block, std::size_t /*size*/) noexcept { release(block, usual); }
void operator delete[](void* block, std::size_t /*size*/) noexcept { release(block, usual); }
void operator delete(void* block, std::align_val_t alignment) noexcept {
    release(block, number(alignment));
}
void operator delete[](void* block, std::align_val_t alignment) noexcept {
    release(block, number(alignment));
}
void operator delete(void* block, std::size_t /*size*/, std::align_val_t alignment) noexcept {
    release(block, number(alignment));
}
void operator delete[](void* block, std::size_t /*size*/, std::align_val_t alignment) noexcept {
    release(block, number(alignment));
}
void operator delete(void* block, const std::nothrow_t& /*tag*/) noexcept { release(block, usual); }
void operator delete[](void* block, const std::nothrow_t& /*tag*/) noexcept {
    release(block, usual);
}
void operator delete(void* block, std::align_val_t alignment,
                     const std::nothrow_t& /*tag*/) noexcept {
    release(block, number(alignment));
}
void operator delete[](void* block, std::align_val_t alignment,
                       const std::nothrow_t& /*tag*/) noexcept {
    release(block, number(alignment));
}
// NOLINTEND(misc-new-delete-overloads)
