/// @file
/// What goes with a removed keyword.
#pragma once

#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// Appends the edits that remove a keyword from a group: each use of it with its lines when nothing
/// else stands on them, otherwise with what separates it from the item before, or behind it where
/// it is the first of its line. Comments inside its value stay. Two edits may both claim the blanks
/// between them.
///
/// @param key  by `asked_key`
void add_removals(const Deck& deck, const Group& group, std::string_view key,
                  std::vector<Edit>& edits);

}  // namespace nurl::input::gamess::source
