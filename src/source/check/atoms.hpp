/// @file
/// Rules about the atoms of `$DATA`.
#pragma once

#include <array>

#include "source/check/rule_row.hpp"

namespace nurl::input::gamess::source::checks {

/// Atoms whose name is the symbol of another element than their charge is of.
void find_charge_symbol(const Context& context, Findings& findings);
/// Atoms that lie closer than 0.1 Angstrom to an earlier one that is not reported itself.
void find_close_atoms(const Context& context, Findings& findings);

/// The rules of this room.
inline constexpr auto atom_rules = std::to_array<RuleRow>({
    {{"charge-symbol", validation::Severity::Warning,
      "an atom whose charge is not that of the element it is named after",
      "The charge, the second word of an atom, decides which element it is; the name is free text. "
      "When the name is the symbol of another element, one of the two is a slip of the pen. Names "
      "of which the first letter alone is the element, such as CA for a carbon, are accepted, and "
      "so "
      "are atoms without a charge, which carry a basis set only."},
     find_charge_symbol},
    {{"close-atoms", validation::Severity::Warning, "two atoms closer than 0.1 Angstrom",
      "Two nuclei at one place have no finite energy, and two that nearly coincide come from a "
      "line "
      "that was pasted twice, a wrong UNITS in $CONTRL, or an atom that symmetry makes already. "
      "Atoms without a charge are left out, since basis functions may share a place with a "
      "nucleus."},
     find_close_atoms},
});

}  // namespace nurl::input::gamess::source::checks
