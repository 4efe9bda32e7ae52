/// @file
/// The tables behind the typed records: for hosts that walk the members of a record, to print it,
/// to show it in a form or to bind it to another language. Not needed for reading and writing
/// groups.
///
///     for (const auto& field : typed::detail::typed_fields<typed::MdSection>)
///         std::cout << field.keyword << '\n';
#pragma once

#include "nurl/input/gamess/typed/fields/ccinp.hpp"   // IWYU pragma: export
#include "nurl/input/gamess/typed/fields/dftb.hpp"    // IWYU pragma: export
#include "nurl/input/gamess/typed/fields/eominp.hpp"  // IWYU pragma: export
#include "nurl/input/gamess/typed/fields/fmo.hpp"     // IWYU pragma: export
#include "nurl/input/gamess/typed/fields/force.hpp"   // IWYU pragma: export
#include "nurl/input/gamess/typed/fields/md.hpp"      // IWYU pragma: export
#include "nurl/input/gamess/typed/fields/pcm.hpp"     // IWYU pragma: export
#include "nurl/input/gamess/typed/fields/statpt.hpp"  // IWYU pragma: export
#include "nurl/input/gamess/typed/fields/surf.hpp"    // IWYU pragma: export
#include "nurl/input/gamess/typed/fields/tddft.hpp"   // IWYU pragma: export
