/// @file
/// The cards of a molecule group as they are compared.
#pragma once

#include <vector>

#include "nurl/input/gamess/source/deck.hpp"
#include "source/compare_cards.hpp"

namespace nurl::input::gamess::source {

/// The cards of a molecule group that count, each with its part: "title", "point group", "axis",
/// "atom", "basis", "variable" or "card". O(n log n) in the length of the group.
///
/// Blank cards that GAMESS passes over are left out: those between atoms where a `$BASIS` gives the
/// basis set, and those around the values of a Z-matrix. The one that closes a basis set is a
/// "basis" card.
[[nodiscard]] std::vector<ComparedCard> data_cards(const Deck& deck, const Group& group,
                                                   const DataRules& rules);

}  // namespace nurl::input::gamess::source
