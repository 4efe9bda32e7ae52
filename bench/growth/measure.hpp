/// @file
/// Counting the instructions of a stretch of the program with callgrind, which has to be started
/// with `--collect-atstart=no`. Outside valgrind nothing is counted and all else happens as usual.
#pragma once

#include <string>
#include <utility>

namespace nurl::bench::growth {

/// Begins to count.
void begin_counting() noexcept;

/// Stops counting.
void end_counting() noexcept;

/// Writes what was counted since the last call to a file of its own, with `label` in it.
void write_counts(const std::string& label);

/// Counts what `action` costs. @return its result, whose destruction is not counted
template <class Action>
[[nodiscard]] auto measured(Action action) {
    begin_counting();
    auto result = action();
    end_counting();
    return result;
}

}  // namespace nurl::bench::growth
