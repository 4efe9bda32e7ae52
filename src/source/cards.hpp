/// @file
/// Cutting the body of a group without keywords into cards.
#pragma once

#include <string_view>

#include "nurl/input/gamess/source/deck.hpp"
#include "source/item_visitor.hpp"

namespace nurl::input::gamess::source {

/// Calls `visit` with each item of a group that has no keywords, as `Deck::items` describes them
/// and in that order. The rest of the header line and what precedes `$END` on its line are cards
/// only when they are not blank. Linear in the length of the body. No more than one card is kept at
/// a time.
void for_each_card_item(std::string_view text, const Group& group, const ItemVisitor& visit);

}  // namespace nurl::input::gamess::source
