/// @file
/// Lifting a generic group into its structured record.
#pragma once

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// Lifts the entries of a group, and the pairs in its raw lines, into the structured record of the
/// same name; other groups change nothing.
///
/// The group becomes present. A keyword given twice is converted twice, the last value that
/// converts stays; what has no member or does not convert is added to the record's `extra`.
///
/// @param section  a group under its bare upper-case name
void lift_structured(const NamedSection& section, GamessInput& input);

}  // namespace nurl::input::gamess::detail
