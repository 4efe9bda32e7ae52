/// @file
/// Going through the items of a group without keeping them all.
#pragma once

#include <functional>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// What is done with an item.
using ItemVisitor = std::function<void(Item item)>;

}  // namespace nurl::input::gamess::source
