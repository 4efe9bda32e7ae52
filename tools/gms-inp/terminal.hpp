/// @file
/// What may reach a terminal, and how.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

namespace gms_inp {

/// Which control characters stay as they are.
enum class Keep {
    Nothing,   ///< all are escaped: for text that has to stay on its line
    LineEnds,  ///< newline and tab stay: for text of several lines
};

/// Writes control characters as `\xNN`: bytes below 0x20, 0x7F, U+0080 to U+009F in UTF-8, and
/// bytes from 0x80 to 0x9F that are no part of a character of UTF-8.
///
/// All other bytes pass through.
///
///     escape_controls("a\033[31m", Keep::Nothing);  // "a\\x1B[31m"
[[nodiscard]] std::string escape_controls(std::string_view text, Keep keep);

/// Whether a stream is a terminal.
[[nodiscard]] bool is_terminal(std::FILE* stream) noexcept;

/// Whether text for a stream is coloured: the stream is a terminal, and the environment variable
/// `NO_COLOR` is unset or empty.
[[nodiscard]] bool wants_colour(std::FILE* stream) noexcept;

}  // namespace gms_inp
