/// @file
/// Where a new keyword goes.
#pragma once

#include <string_view>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// The edit that adds a keyword to a group: behind its last item, or on a line of its own where the
/// keywords of the group stand so, a comment ends the line, or the line would pass 80 columns.
///
/// @param group  a closed keyword group
/// @param key    upper case; written in lower case behind a keyword in lower case
[[nodiscard]] Edit addition(const Deck& deck, const Group& group, std::string_view key,
                            std::string_view value);

}  // namespace nurl::input::gamess::source
