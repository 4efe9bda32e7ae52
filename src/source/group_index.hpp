/// @file
/// Finding the groups of a deck.
#pragma once

#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// The groups of a text by the rules that `Deck` states, in ascending order.
///
/// One pass, linear in the length of the text whatever is in it. The text must not move while the
/// groups are looked for.
[[nodiscard]] std::vector<Group> index_groups(std::string_view text);

}  // namespace nurl::input::gamess::source
