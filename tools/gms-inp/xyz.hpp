/// @file
/// Molecules in XYZ files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace gms_inp {

/// What reading an XYZ file gives.
struct XyzMolecule {
    std::string comment;                                 ///< second line, trimmed
    std::vector<nurl::input::gamess::AtomRecord> atoms;  ///< coordinates in angstrom, no charges
    std::size_t faulty_line = 0;  ///< where the text is no XYZ file, from 1; 0 when it is one
    std::string fault;            ///< what was expected there and what stands there
};

/// Reads an XYZ file: the number of atoms, a comment line, and a line `symbol x y z` for each atom,
/// coordinates in angstrom. Further columns do not count; behind the last atom only blank lines may
/// follow, so a trajectory is refused. Exponents may be written with `E` or `D`. A symbol with a
/// `$`, `=` or `!` is refused, since it would be more than a symbol in a deck.
///
/// Linear in the length of the text; nothing is thrown for content.
[[nodiscard]] XyzMolecule read_xyz(std::string_view text);

}  // namespace gms_inp
