/// @file
/// The spellings of logical values.
#pragma once

#include <optional>
#include <string_view>

namespace nurl::input::gamess::detail {

/// What the text "0" means where a logical value is read.
enum class ZeroText {
    IsFalse,      ///< reading decks: "0" is false, as "1" is true
    IsNoLogical,  ///< setting keywords: only "1" is taken, a "0" is kept as text
};

/// Reads a logical value: `.T.`, `T`, `TRUE`, `YES`, `1` or `.F.`, `F`, `FALSE`, `NO`, `0`.
///
/// @param trimmed  text without blanks at its ends, in any case
/// @return         nothing for every other text, `.TRUE.` and `.FALSE.` included
[[nodiscard]] std::optional<bool> parse_logical(std::string_view trimmed, ZeroText zero) noexcept;

}  // namespace nurl::input::gamess::detail
