#include "faults/allocation_faults.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace nurl::test {

namespace {

struct Allocator {
    long live = 0;                          ///< blocks given and not got back
    std::size_t countdown = 0;              ///< allocations up to the one that fails; 0 for none
    Shortage shortage = Shortage::Passing;  ///< what follows it
    bool met = false;                       ///< whether it was asked for
};

Allocator& allocator() noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): operator new has no
    // object
    static constinit Allocator the_one;
    return the_one;
}

/// Counts the failures of a program and tells their number at its end.
class Tally {
public:
    Tally() = default;
    Tally(const Tally&) = delete;
    Tally& operator=(const Tally&) = delete;
    Tally(Tally&&) = delete;
    Tally& operator=(Tally&&) = delete;
    ~Tally() {
        // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): a stream would allocate
        if (tried_ > 0) std::printf("Allocations that were made to fail: %zu\n", tried_);
    }

    void add() noexcept { ++tried_; }

private:
    std::size_t tried_ = 0;
};

Tally& tally() {
    static Tally the_one;
    return the_one;
}

bool is_to_fail() noexcept {
    Allocator& all = allocator();
    if (all.met) return all.shortage == Shortage::Lasting;
    if (all.countdown == 0 || --all.countdown > 0) return false;
    all.met = true;
    return true;
}

// NOLINTBEGIN(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): these are the owners
void* allocate(std::size_t size, std::size_t alignment) noexcept {
    if (is_to_fail()) return nullptr;
    const std::size_t blocks = std::max<std::size_t>(1, (size + alignment - 1) / alignment);
    void* const block = alignment <= alignof(std::max_align_t)
                            ? std::malloc(std::max<std::size_t>(1, size))
                            : std::aligned_alloc(alignment, blocks * alignment);
    if (block != nullptr) ++allocator().live;
    return block;
}

void release(void* block) noexcept {
    if (block == nullptr) return;
    --allocator().live;
    std::free(block);
}
// NOLINTEND(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)

void* allocate_or_throw(std::size_t size, std::size_t alignment) {
    if (void* const block = allocate(size, alignment)) return block;
    throw std::bad_alloc();
}

constexpr std::size_t usual = alignof(std::max_align_t);

constexpr std::size_t number(std::align_val_t alignment) noexcept {
    return static_cast<std::size_t>(alignment);
}

}  // namespace

long live_blocks() noexcept { return allocator().live; }

AllocationFault::AllocationFault(std::size_t occurrence, Shortage shortage) noexcept {
    Allocator& all = allocator();
    all.countdown = occurrence;
    all.shortage = shortage;
    all.met = false;
}

AllocationFault::~AllocationFault() {
    if (was_met()) tally().add();
    allocator().countdown = 0;
    allocator().met = false;
}

// NOLINTNEXTLINE(readability-convert-member-functions-to-static): only a fault that lives was met
bool AllocationFault::was_met() const noexcept { return allocator().met; }

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

void operator delete(void* block) noexcept { release(block); }
void operator delete[](void* block) noexcept { release(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { release(block); }
void operator delete[](void* block, std::size_t /*size*/) noexcept { release(block); }
void operator delete(void* block, std::align_val_t /*alignment*/) noexcept { release(block); }
void operator delete[](void* block, std::align_val_t /*alignment*/) noexcept { release(block); }
void operator delete(void* block, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
    release(block);
}
void operator delete[](void* block, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
    release(block);
}
void operator delete(void* block, const std::nothrow_t& /*tag*/) noexcept { release(block); }
void operator delete[](void* block, const std::nothrow_t& /*tag*/) noexcept { release(block); }
void operator delete(void* block, std::align_val_t /*alignment*/,
                     const std::nothrow_t& /*tag*/) noexcept {
    release(block);
}
void operator delete[](void* block, std::align_val_t /*alignment*/,
                       const std::nothrow_t& /*tag*/) noexcept {
    release(block);
}
// NOLINTEND(misc-new-delete-overloads)
