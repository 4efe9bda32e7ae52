/// @file
/// Rules by the names that users give.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "nurl/input/gamess/source/check.hpp"

namespace gms_inp {

/// The rule of a name in any letter case, blanks around it ignored.
///
/// @throws std::runtime_error when there is none; the message names the nearest one
[[nodiscard]] const nurl::input::gamess::source::Rule& rule_named(std::string_view name);

/// The candidate with the fewest letters to change, add or remove until it is `word`, letter case
/// aside; empty when more than a third of the word would have to change.
[[nodiscard]] std::string_view nearest(std::string_view word,
                                       std::span<const std::string_view> candidates);

}  // namespace gms_inp
