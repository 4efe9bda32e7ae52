/// @file
/// Where lines begin and end in a text. A line ends at LF, CR LF or a lone CR.
#pragma once

#include <cstddef>
#include <string_view>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// Whether `c` ends a line, or is a part of what ends it.
constexpr bool is_line_end(char c) noexcept { return c == '\n' || c == '\r'; }

/// Whether `c` separates words within a line: space, tab, vertical tab or form feed.
constexpr bool is_padding(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\v' || c == '\f';
}

/// Whether `c` separates items within a line: padding or a comma.
constexpr bool is_separator(char c) noexcept { return is_padding(c) || c == ','; }

/// The first offset from `at` on whose byte is no padding, or the size of the text.
constexpr std::size_t skip_padding(std::string_view text, std::size_t at) noexcept {
    while (at < text.size() && is_padding(text[at])) ++at;
    return at;
}

/// The number of lines that end in a span, a CR LF pair counted where its LF is.
[[nodiscard]] std::size_t count_line_ends(std::string_view text, Span span) noexcept;

/// Offset of the first byte of the line that holds the byte at `offset`.
[[nodiscard]] std::size_t line_begin(std::string_view text, std::size_t offset) noexcept;

/// Offset of the line end at or behind `offset`, or the size of the text.
[[nodiscard]] std::size_t line_end(std::string_view text, std::size_t offset) noexcept;

/// Offset of the first byte behind the line end at or behind `offset`, or the size of the text.
[[nodiscard]] std::size_t next_line(std::string_view text, std::size_t offset) noexcept;

/// The line end that text put in at `offset` should have: that of the line there, of the one before
/// it when that line has none, and LF when neither has one.
[[nodiscard]] std::string_view line_end_near(std::string_view text, std::size_t offset) noexcept;

}  // namespace nurl::input::gamess::source
