/// @file
/// Rules about the cards of `$DATA`.
#pragma once

#include <array>

#include "source/check/rule_row.hpp"

namespace nurl::input::gamess::source::checks {

/// A point group other than C1 that an atom follows at once.
void find_missing_blank_card(const Context& context, Findings& findings);
/// Blank cards between the point group C1 and the first atom.
void find_blank_card_after_c1(const Context& context, Findings& findings);
/// Basis sets under atoms that no blank card closes.
void find_missing_blank_after_basis(const Context& context, Findings& findings);
/// Point groups that GAMESS does not know, or that lack the order of their axis.
void find_point_group_name(const Context& context, Findings& findings);

/// The rules of this room.
inline constexpr auto molecule_rules = std::to_array<RuleRow>({
    {{"blank-card-after-c1", validation::Severity::Error, "a blank card behind the point group C1",
      "Behind C1 the first atom follows at once, so that GAMESS reads a blank card there as an "
      "atom. Only the other point groups are followed by a blank card. Remove it."},
     find_blank_card_after_c1},
    {{"missing-blank-after-basis", validation::Severity::Error,
      "a basis set under an atom that no blank card closes",
      "In a deck without $BASIS the basis set of each atom stands under the atom and ends with a "
      "blank card, after the last atom too. Without it GAMESS reads the next atom, or the $END, as "
      "more of the basis set. Put a blank line behind the last card of the basis set."},
     find_missing_blank_after_basis},
    {{"missing-blank-card", validation::Severity::Error,
      "no blank card behind a point group other than C1",
      "Every point group but C1 is followed by one blank card, or by cards that place the axes. "
      "Where it is missing, GAMESS reads the first atom as such a card and the molecule lacks an "
      "atom. Put a blank line behind the point group."},
     find_missing_blank_card},
    {{"point-group-name", validation::Severity::Error, "a point group that GAMESS does not know",
      "The names are C1, CS, CI, CN, S2N, CNH, CNV, DN, DNH, DND, T, TH, TD, O and OH. Those with "
      "an "
      "N are followed by the order of the axis: C2v is written CNV 2, D6h is DNH 6, and S4 is S2N "
      "2. "
      "Linear molecules take CNV 4 or DNH 4."},
     find_point_group_name},
});

}  // namespace nurl::input::gamess::source::checks
