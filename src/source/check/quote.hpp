/// @file
/// Words of a deck in messages.
#pragma once

#include <string>
#include <string_view>

namespace nurl::input::gamess::source::checks {

/// A word, cut to 40 bytes and `...` where it is longer, so that no message is long because a deck
/// is odd.
[[nodiscard]] std::string shortened(std::string_view word);

/// A word as `shortened` gives it, between single quotes.
[[nodiscard]] std::string quoted(std::string_view word);

}  // namespace nurl::input::gamess::source::checks
