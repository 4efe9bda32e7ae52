/// @file
/// The text of a value without its layout.
#pragma once

#include <string>
#include <string_view>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// What stands between two words of a value.
struct Gap {
    std::string_view text;  ///< without its layout: as written, where that is blanks and commas of
                            ///< one line; otherwise a comma when there is one outside comments,
                            ///< else a space
    bool has_layout = false;  ///< a line end or a comment is in it
    bool has_comma = false;   ///< a comma is in it, outside comments
};

/// Looks at what stands between two words.
[[nodiscard]] Gap read_gap(std::string_view text, Span gap) noexcept;

/// The words of a value with the texts of their gaps between them; empty without words.
[[nodiscard]] std::string value_text(std::string_view text, const Item& keyword);

}  // namespace nurl::input::gamess::source
