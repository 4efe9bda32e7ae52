// The seam itself: what it must see, and that it finds what it is there to find.
#include "faults/fail_each.hpp"

#include <array>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include <doctest/doctest.h>

using nurl::test::AllocationFault;
using nurl::test::live_blocks;
using nurl::test::Shortage;

namespace {

struct alignas(64) Wide {
    std::array<char, 64> bytes;
};

/// Shows a pointer to the world, since a compiler may do without a block that nobody sees.
template <class Pointer>
Pointer seen(Pointer pointer) {
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): that is the world
    [[maybe_unused]] static const void* volatile world = nullptr;
    world = pointer.get();
    return pointer;
}

/// Whether an operation fails with the n-th allocation and only then.
template <class Operation>
bool throws_at(std::size_t occurrence, const Operation& operation) {
    const AllocationFault fault(occurrence, Shortage::Passing);
    try {
        operation();
    } catch (const std::bad_alloc&) {
        return fault.was_met();
    }
    return false;
}

}  // namespace

// NOLINTBEGIN(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays): they have forms of their
// own
TEST_CASE("Blocks of every form of operator new are counted until they are given back") {
    const long before = live_blocks();
    {
        const auto one = seen(std::make_unique<int>(1));
        const auto many = seen(std::make_unique<int[]>(10));
        const auto wide = seen(std::make_unique<Wide>());
        const auto many_wide = seen(std::make_unique<Wide[]>(2));
        const auto quiet = seen(std::unique_ptr<int>{new (std::nothrow) int{1}});
        const auto quiet_wide = seen(std::unique_ptr<Wide>{new (std::nothrow) Wide{}});
        CHECK(live_blocks() == before + 6);
    }
    CHECK(live_blocks() == before);
}

// NOLINTEND(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)

TEST_CASE("The standard library, also where it is compiled already, takes its blocks from here") {
    const long before = live_blocks();
    {
        const std::string text(100, 'x');
        std::string grown;
        grown.append(text);
        CHECK(live_blocks() == before + 2);
    }
    CHECK(live_blocks() == before);
}

TEST_CASE("The allocation that is named fails and no other") {
    const auto two_texts = [] { return std::string(100, 'a') + std::string(200, 'b'); };
    CHECK(throws_at(1, two_texts));
    CHECK(throws_at(2, two_texts));
    CHECK_FALSE(throws_at(9, two_texts));
    CHECK_FALSE(throws_at(0, two_texts));
}

TEST_CASE("A shortage lasts or passes") {
    for (const Shortage shortage : {Shortage::Passing, Shortage::Lasting}) {
        std::unique_ptr<int> first;
        std::unique_ptr<int> second;
        {
            const AllocationFault fault(1, shortage);
            first = seen(std::unique_ptr<int>{new (std::nothrow) int{1}});
            second = seen(std::unique_ptr<int>{new (std::nothrow) int{2}});
        }
        CHECK(first == nullptr);
        CHECK((second != nullptr) == (shortage == Shortage::Passing));
    }
}

TEST_CASE("Every allocation of an operation is tried") {
    int runs = 0;
    nurl::test::fail_each_allocation_of([&runs] {
        ++runs;
        std::vector<std::string> list;
        list.emplace_back(100, 'x');
        return list;
    });
    // Once without a failure; with the list or the text failing, and to the end; twice.
    CHECK(runs == 1 + 2 * 3);
}

TEST_CASE("A change that is not taken back is found" * doctest::should_fail()) {
    nurl::test::fail_each_allocation_of_change(std::vector<std::string>{"old"},
                                               [](std::vector<std::string>& list) {
                                                   list.front() = "new";
                                                   list.emplace_back(100, 'x');
                                               });
}

TEST_CASE("A failure that is swallowed is found" * doctest::should_fail()) {
    nurl::test::fail_each_allocation_of([] {
        try {
            return std::string(100, 'x');
        } catch (const std::bad_alloc&) {
            return std::string{};
        }
    });
}

TEST_CASE("A block that is left behind is found" * doctest::should_fail()) {
    std::vector<std::unique_ptr<int>> kept;
    kept.reserve(100);
    nurl::test::fail_each_allocation_of([&kept] {
        kept.push_back(std::make_unique<int>(1));
        return std::string(100, 'x');
    });
}
