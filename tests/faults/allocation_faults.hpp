/// @file
/// Allocations that fail on demand.
///
/// A program that holds the source beside this header has an operator new of its own, in all its
/// forms: it counts the blocks that were not given back, and it fails while one of the objects
/// below wants it to. For programs of one thread, and for one object at a time.
#pragma once

#include <cstddef>

namespace nurl::test {

/// How many allocations fail.
enum class Shortage {
    Passing,  ///< one, and those behind it succeed
    Lasting,  ///< one and all behind it
};

/// Blocks that operator new has given and operator delete has not got back.
[[nodiscard]] long live_blocks() noexcept;

/// Lets an allocation fail while it lives.
class AllocationFault {
public:
    /// @param occurrence  which allocation from now on fails first, counted from 1
    AllocationFault(std::size_t occurrence, Shortage shortage) noexcept;
    AllocationFault(const AllocationFault&) = delete;
    AllocationFault& operator=(const AllocationFault&) = delete;
    AllocationFault(AllocationFault&&) = delete;
    AllocationFault& operator=(AllocationFault&&) = delete;
    ~AllocationFault();

    /// Whether the code under test came as far as the allocation that fails. One that was met also
    /// goes into the number that the program prints at its end.
    [[nodiscard]] bool was_met() const noexcept;
};

}  // namespace nurl::test
