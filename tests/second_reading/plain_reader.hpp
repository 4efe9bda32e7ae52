/// @file
/// A second reader of deck text, written for plainness, to compare the real one with.
#pragma once

#include <string>

#include "nurl/input/gamess/model.hpp"

namespace nurl::test {

/// Reads the text of a deck as `parse_string` promises to. It asks the schema of the process for
/// nothing but how the text of a group is read.
[[nodiscard]] input::gamess::ParseResult read_plainly(const std::string& text);

}  // namespace nurl::test
