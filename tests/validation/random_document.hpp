/// @file
/// Documents that a careless hand has made, for properties that hold for every document.
#pragma once

#include <iosfwd>

#include <rapidcheck.h>

#include "nurl/input/gamess/model.hpp"

namespace nurl::test {

/// Groups of known, aliased, odd and unknown names with entries and raw lines of all kinds.
[[nodiscard]] rc::Gen<input::gamess::NamedSection> any_section();

/// A document whose records, groups read and groups added are random.
[[nodiscard]] rc::Gen<input::gamess::GamessInput> any_document();

}  // namespace nurl::test

namespace nurl::input::gamess {

/// How rapidcheck shows the groups and documents of a counterexample.
void showValue(const KeyValue& entry, std::ostream& stream);
void showValue(const NamedSection& section, std::ostream& stream);
void showValue(const GamessInput& input, std::ostream& stream);

}  // namespace nurl::input::gamess
