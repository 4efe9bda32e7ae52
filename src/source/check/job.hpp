/// @file
/// Rules about what the groups of a deck say together.
#pragma once

#include <array>

#include "source/check/rule_row.hpp"

namespace nurl::input::gamess::source::checks {

/// A number of electrons that does not go with the multiplicity.
void find_electron_count(const Context& context, Findings& findings);
/// Orbitals to be read that the deck does not have.
void find_missing_vec(const Context& context, Findings& findings);
/// Decks without a molecule.
void find_missing_molecule(const Context& context, Findings& findings);
/// Fragment runs without the coordinates of their atoms.
void find_missing_fmoxyz(const Context& context, Findings& findings);

/// The rules of this room.
inline constexpr auto job_rules = std::to_array<RuleRow>({
    {{"electron-count", validation::Severity::Error,
      "a number of electrons that does not go with MULT",
      "The charges of the atoms less ICHARG give the number of electrons. An even number needs an "
      "odd MULT, an odd number an even one; GAMESS stops otherwise. MULT is 1 and ICHARG is 0 when "
      "they are not given. The rule runs where the deck lists all atoms, and not for fragment "
      "runs, QM/MM runs and core potentials that the deck brings along."},
     find_electron_count},
    {{"missing-fmoxyz", validation::Severity::Error, "$FMO without $FMOXYZ",
      "In a fragment run $DATA holds kinds of atoms without coordinates; the atoms of the molecule "
      "stand in $FMOXYZ. GAMESS stops when the group is not there."},
     find_missing_fmoxyz},
    {{"missing-molecule", validation::Severity::Info, "no $DATA",
      "GAMESS needs a $DATA unless COORD in $CONTRL is FRAGONLY or TINKER. A file without one is "
      "no whole deck; it may be the part that a script puts in front of a molecule."},
     find_missing_molecule},
    {{"missing-vec", validation::Severity::Error, "GUESS=MOREAD without $VEC",
      "GUESS=MOREAD in $GUESS takes the starting orbitals from the $VEC of the deck, and GAMESS "
      "stops when there is none. Paste the group that an earlier run punched, with its header and "
      "its $END, or choose another GUESS."},
     find_missing_vec},
});

}  // namespace nurl::input::gamess::source::checks
