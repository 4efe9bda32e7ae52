/// @file
/// Cutting the body of a keyword group into its items.
#pragma once

#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// The items of a keyword group, as `Deck::items` describes them. Linear in the length of the body.
[[nodiscard]] std::vector<Item> keyword_items(std::string_view text, const Group& group);

}  // namespace nurl::input::gamess::source
