/// @file
/// The 80 columns of a line.
#pragma once

#include <cstddef>
#include <string_view>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source::checks {

/// How many columns of a line GAMESS reads.
inline constexpr std::size_t columns_read = 80;

/// The line that holds a byte, without its line end. Linear in the length of the line.
[[nodiscard]] Span line_around(const Deck& deck, std::size_t offset) noexcept;

/// Whether a line has room for so many more bytes. Blanks at its end take none.
[[nodiscard]] bool fits(const Deck& deck, Span line, std::size_t more) noexcept;

/// Whether nothing but blanks, or a byte-order mark, stands before a byte on its line.
[[nodiscard]] bool is_first_on_line(const Deck& deck, std::size_t offset) noexcept;

/// The line end in front of the line that begins at `offset`; that of the deck for the first line.
/// Put in there once more, it makes a blank line, whatever line ends the deck mixes.
[[nodiscard]] std::string_view line_end_before(const Deck& deck, std::size_t offset) noexcept;

}  // namespace nurl::input::gamess::source::checks
