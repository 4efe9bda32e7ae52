/// @file
/// A plain second walk over deck text that tells what of it is missing in a document.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace nurl::test {

/// Compares the text inside the groups of a deck with the document read from it.
///
/// For a group other than `$DATA` the pieces of text are compared: names, runs of digits, and every
/// other character that is no blank, as many times as they occur, without regard to letter case.
/// For `$DATA` title, point group, atoms and other lines are compared one by one, numbers by value;
/// the index and the words behind the coordinates of an atom are not part of the document.
///
/// @return one sentence for each difference; empty when the document holds everything
std::vector<std::string> lost_text(std::string_view text, const input::gamess::GamessInput& deck);

}  // namespace nurl::test
