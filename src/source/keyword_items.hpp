/// @file
/// Cutting the body of a keyword group into its items.
#pragma once

#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"
#include "source/item_visitor.hpp"

namespace nurl::input::gamess::source {

/// Calls `visit` with each item of a keyword group, as `Deck::items` describes them and in that
/// order. Linear in the length of the body. No more than one keyword is kept at a time.
void for_each_keyword_item(std::string_view text, const Group& group, const ItemVisitor& visit);

/// The items of a keyword group, as `Deck::items` describes them. Linear in the length of the body.
[[nodiscard]] std::vector<Item> keyword_items(std::string_view text, const Group& group);

}  // namespace nurl::input::gamess::source
