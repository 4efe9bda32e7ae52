/// @file
/// What goes with a removed keyword.
#pragma once

#include <cstddef>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// The edits that remove a keyword: with its lines when nothing else stands on them, otherwise with
/// what separates it from the item before, or behind it where it is the first of its line. Comments
/// inside its value stay.
///
/// @param items  the items of its group
/// @param index  which of them
[[nodiscard]] std::vector<Edit> removal(const Deck& deck, const Group& group,
                                        const std::vector<Item>& items, std::size_t index);

}  // namespace nurl::input::gamess::source
