/// @file
/// Comparing keyword groups.
#pragma once

#include <span>
#include <vector>

#include "nurl/input/gamess/source/compare.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// The copies of one group in one deck.
struct Copies {
    const Deck& deck;
    std::span<const Group> groups;  ///< at least one, all of one name and kind
};

/// Appends what two keyword groups of one name say differently: keywords in the order of the first
/// deck and then of the second, then words that belong to no keyword. O(n log n).
void compare_keywords(const Copies& a, const Copies& b, std::vector<Difference>& differences);

}  // namespace nurl::input::gamess::source
