/// @file
/// Ten groups as typed records, one member for each keyword.
///
/// A group is read into its record, changed, and written back as a whole. What a record has no
/// member for, and values that do not convert, are kept as entries, free text as raw lines. List
/// members gather all entries of their keyword in the order met, whatever index they are written
/// with, and are written as one entry.
///
/// What a member stands for is written in one way: of a keyword given twice the last value that
/// converts, a list under its first index, a real with 15 significant digits, and a blank word or
/// an empty list not at all.
///
/// Functions throw only when memory runs out; the document or list that they were to change is then
/// as it was.
///
///     if (auto search = typed::get_statpt_section(deck)) {
///         search->nstep = 100;
///         typed::set_statpt_section(deck, *search);
///     }
#pragma once

#include "nurl/input/gamess/typed/ccinp.hpp"   // IWYU pragma: export
#include "nurl/input/gamess/typed/detail.hpp"  // IWYU pragma: export
#include "nurl/input/gamess/typed/dftb.hpp"    // IWYU pragma: export
#include "nurl/input/gamess/typed/eominp.hpp"  // IWYU pragma: export
#include "nurl/input/gamess/typed/fmo.hpp"     // IWYU pragma: export
#include "nurl/input/gamess/typed/force.hpp"   // IWYU pragma: export
#include "nurl/input/gamess/typed/md.hpp"      // IWYU pragma: export
#include "nurl/input/gamess/typed/pcm.hpp"     // IWYU pragma: export
#include "nurl/input/gamess/typed/statpt.hpp"  // IWYU pragma: export
#include "nurl/input/gamess/typed/surf.hpp"    // IWYU pragma: export
#include "nurl/input/gamess/typed/tddft.hpp"   // IWYU pragma: export
