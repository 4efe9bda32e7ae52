/// @file
/// A second lifting of groups into their structured records, to compare the real one with.
#pragma once

#include "nurl/input/gamess/model.hpp"

namespace nurl::test {

/// Lifts a group into the record of its name; other groups change nothing.
void lift_plainly(const input::gamess::NamedSection& section, input::gamess::GamessInput& input);

}  // namespace nurl::test
