/// @file
/// Telling an atom from other cards of `$DATA`.
#pragma once

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source::checks {

/// Whether four numbers, as if charge and coordinates, stand behind the first word of a card.
[[nodiscard]] bool is_like_atom(const Deck& deck, const Item& card);

/// Whether a card is an atom for certain: it is like one, and its symbol and its charge agree.
[[nodiscard]] bool is_certain_atom(const Deck& deck, const Item& card);

}  // namespace nurl::input::gamess::source::checks
