/// @file
/// Cutting the body of a group without keywords into cards.
#pragma once

#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// The items of a group that has no keywords, as `Deck::items` describes them. The rest of the
/// header line and what precedes `$END` on its line are cards only when they are not blank. Linear
/// in the length of the body.
[[nodiscard]] std::vector<Item> card_items(std::string_view text, const Group& group);

}  // namespace nurl::input::gamess::source
