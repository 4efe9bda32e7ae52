/// @file
/// What a line of a deck is: the header of a group, its end, or body text.
#pragma once

#include <optional>
#include <string_view>

namespace nurl::input::gamess::detail {

/// A line that opens a group. Both views point into the line.
struct HeaderLine {
    std::string_view name;       ///< as written, without the `$`; never empty
    std::string_view remainder;  ///< what follows the name, without blanks at the end of the line
};

/// Reads a line as a header: `$` and a name as the first text of the line. Lines that begin with
/// `$END` in any case are none, nor is a `$` without a name.
[[nodiscard]] std::optional<HeaderLine> read_header(std::string_view line) noexcept;

/// Text up to an end marker.
struct CutText {
    std::string_view text;  ///< what stands before the first `$END` in any case, or everything
    bool has_end = false;   ///< whether there is a `$END`
};

/// Cuts a line at its end marker.
[[nodiscard]] CutText cut_at_end(std::string_view line) noexcept;

}  // namespace nurl::input::gamess::detail
