#include "faults/allocation_faults.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstdlib>

#include "support/own_new.hpp"

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

}  // namespace

// NOLINTBEGIN(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): these are the owners
void* allocate_block(std::size_t size, std::size_t alignment) noexcept {
    if (is_to_fail()) return nullptr;
    const std::size_t blocks = std::max<std::size_t>(1, (size + alignment - 1) / alignment);
    void* const block = alignment <= alignof(std::max_align_t)
                            ? std::malloc(std::max<std::size_t>(1, size))
                            : std::aligned_alloc(alignment, blocks * alignment);
    if (block != nullptr) ++allocator().live;
    return block;
}

void release_block(void* block, std::size_t /*alignment*/) noexcept {
    if (block == nullptr) return;
    --allocator().live;
    std::free(block);
}
// NOLINTEND(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)

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
