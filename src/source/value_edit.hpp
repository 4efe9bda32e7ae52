/// @file
/// Turning one value into another by the fewest bytes.
#pragma once

#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// The edits that make the value of a keyword read as `value`.
///
/// The words that both values begin and end with keep their bytes. Where as many words come as go,
/// with the same commas between them, each is replaced in its place; otherwise all are replaced
/// together, and comments that stood between them follow the new ones.
///
/// @param keyword  a keyword of `deck`
/// @param value    words that `keyword_items` reads as one value, without blanks around them
/// @return         sorted by place; empty when the value is so already
[[nodiscard]] std::vector<Edit> value_edits(const Deck& deck, const Item& keyword,
                                            std::string_view value);

/// Whether two values are the same but for blanks, where a line end stands in one of them: the same
/// words with a comma between the same ones.
[[nodiscard]] bool same_value(std::string_view a, std::string_view b);

}  // namespace nurl::input::gamess::source
