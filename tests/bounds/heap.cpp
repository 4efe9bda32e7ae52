// The size of a block stands in front of it, in as much room as its alignment takes.
#include "bounds/heap.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "support/own_new.hpp"

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

}  // namespace

// NOLINTBEGIN(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): these are the owners
void* allocate_block(std::size_t size, std::size_t alignment) noexcept {
    const std::size_t blocks = (size + alignment - 1) / alignment + 1;
    if (blocks <= size / alignment) return nullptr;
    void* const block = std::aligned_alloc(alignment, blocks * alignment);
    if (block == nullptr) return nullptr;
    std::memcpy(block, &size, sizeof size);
    heap().live += size;
    heap().peak = std::max(heap().peak, heap().live);
    return static_cast<std::byte*>(block) + alignment;
}

void release_block(void* given, std::size_t alignment) noexcept {
    if (given == nullptr) return;
    void* const block = static_cast<std::byte*>(given) - alignment;
    std::size_t size = 0;
    std::memcpy(&size, block, sizeof size);
    heap().live -= size;
    std::free(block);
}
// NOLINTEND(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)

std::size_t live_bytes() noexcept { return heap().live; }

std::size_t peak_bytes() noexcept { return heap().peak; }

void forget_peak() noexcept { heap().peak = heap().live; }

}  // namespace nurl::test
