/// @file
/// Applying edits to a text.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// The text with all edits applied. Linear in the length of both texts.
///
/// @throws std::runtime_error "Edits overlap or lie outside the text"
[[nodiscard]] std::string edited_text(std::string_view text, std::span<const Edit> edits);

}  // namespace nurl::input::gamess::source
