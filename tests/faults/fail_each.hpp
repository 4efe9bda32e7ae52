/// @file
/// Running an operation again and again, with another allocation failing each time.
///
/// Each of the functions below runs an operation with its 1st, 2nd, 3rd ... allocation failing,
/// first that one alone and then with all behind it, until the operation is through before the
/// allocation that would fail. A run that throws must throw `std::bad_alloc`, leave what it works
/// on as it was, and leave no block behind. A run that gets over a failure must do what it does
/// without one.
#pragma once

#include <cstddef>
#include <functional>
#include <new>
#include <optional>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "faults/allocation_faults.hpp"

namespace nurl::test {

/// What one run gave.
struct Attempt {
    std::size_t occurrence;             ///< which allocation was to fail
    Shortage shortage;                  ///< and what behind it
    bool met = false;                   ///< the operation came as far as that allocation
    bool threw = false;                 ///< `std::bad_alloc` came out
    bool left_as_it_should_be = false;  ///< what it works on: as before when it threw
    long blocks_left_behind = 0;        ///< blocks that were made and not given back
};

/// Lets the test case fail when a run did anything that it must not.
void judge(const Attempt& attempt);

/// Fails each allocation of a change of something.
///
/// @param make    makes what is changed; its allocations do not fail
/// @param change  gets a reference to it
/// @param look    gives of it what can be compared
template <class Make, class Change, class Look>
void fail_each_allocation(const Make& make, const Change& change, const Look& look) {
    // The first run also makes what is made only once in a process.
    auto model = make();
    const auto before = std::invoke(look, model);
    change(model);
    const auto after = std::invoke(look, model);
    for (const Shortage shortage : {Shortage::Passing, Shortage::Lasting}) {
        Attempt attempt{.occurrence = 0, .shortage = shortage, .met = true};
        while (attempt.met) {
            attempt = {.occurrence = attempt.occurrence + 1, .shortage = shortage};
            const long blocks = live_blocks();
            {
                auto subject = make();
                {
                    const AllocationFault fault(attempt.occurrence, shortage);
                    try {
                        change(subject);
                    } catch (const std::bad_alloc&) {
                        attempt.threw = true;
                    }
                    attempt.met = fault.was_met();
                }
                attempt.left_as_it_should_be =
                    std::invoke(look, subject) == (attempt.threw ? before : after);
            }
            attempt.blocks_left_behind = live_blocks() - blocks;
            judge(attempt);
        }
    }
}

/// Fails each allocation of a change of a value that can be copied.
template <class Value, class Change, class Look = std::identity>
void fail_each_allocation_of_change(const Value& before, const Change& change,
                                    const Look& look = {}) {
    fail_each_allocation([&before] { return before; }, change, look);
}

/// A change that may be refused by `std::runtime_error`. A refusal counts as done.
template <class Change>
[[nodiscard]] auto refusable(Change change) {
    return [change = std::move(change)](auto& subject) {
        try {
            change(subject);
        } catch (const std::runtime_error&) {
            return;
        }
    };
}

/// Fails each allocation of an operation that gives a value and changes nothing.
template <class Operation>
void fail_each_allocation_of(const Operation& operation) {
    using Result = std::invoke_result_t<Operation>;
    fail_each_allocation(
        [] { return std::optional<Result>{}; },
        [&operation](std::optional<Result>& result) { result.emplace(operation()); },
        std::identity{});
}

}  // namespace nurl::test
