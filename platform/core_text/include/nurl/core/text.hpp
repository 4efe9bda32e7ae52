/// @file
/// Text helpers that give the same answer under every locale.
///
/// Only ASCII has meaning here: bytes above 0x7F and NUL are neither letters, nor digits, nor white
/// space, and pass through untouched. White space is what the C locale calls so: space, `\t`, `\n`,
/// `\v`, `\f` and `\r`. Every function is linear in the length of its text, keeps no state and may
/// be called from any thread; what throws at all throws only on memory exhaustion.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace nurl::core::text {

/// Copies a text without the white space at its two ends.
///
/// @return the rest with its inner white space kept; empty when there is nothing else
///
///     trim(" two  words\r\n");  // "two  words"
[[nodiscard]] std::string trim(std::string_view text);

/// Copies a text with 'a' to 'z' turned into 'A' to 'Z' and every other byte kept.
///
///     to_upper_copy("c1 {x}");  // "C1 {X}"
[[nodiscard]] std::string to_upper_copy(std::string_view text);

/// Copies a text with 'A' to 'Z' turned into 'a' to 'z' and every other byte kept.
///
///     to_lower_copy("C1 {X}");  // "c1 {x}"
[[nodiscard]] std::string to_lower_copy(std::string_view text);

/// Cuts a text into lines.
///
/// A line ends at LF, CR LF or a lone CR, also where these are mixed. A terminator at the very end
/// of the text opens no further line; a last line may lack its terminator.
///
/// @return the lines without their terminators; none for an empty text
///
///     split_lines("a\r\n\nb\n");  // "a", "", "b"
[[nodiscard]] std::vector<std::string> split_lines(std::string_view text);

/// Reads a whole text as a decimal integer: an optional `+` or `-`, then digits.
///
/// @param text   the number and nothing else, no white space either; leading zeros are allowed
/// @param value  set on success, untouched otherwise
/// @return       false when the text has another form or the number does not fit in 32 bits
///
///     try_parse_int("+007", value);  // true, 7
///     try_parse_int("7 ", value);    // false
[[nodiscard]] bool try_parse_int(std::string_view text, std::int32_t& value) noexcept;

/// Reads a whole text as a decimal number, rounded to the nearest `double`.
///
/// The form is an optional `+` or `-`, digits with or without a point (`1`, `1.`, `.5`, `1.5`),
/// then optionally `e`, `E`, `d` or `D` with an optional sign and digits. Infinities, NaNs and
/// hexadecimal numbers are not read.
///
/// @param text   the number and nothing else, no white space either
/// @param value  set on success, untouched otherwise
/// @return       false when the text has another form or the number is too large for a `double`; a
///               number too small for one gives true and a zero of its sign
///
///     try_parse_double("-1.5D-3", value);  // true, -0.0015
///     try_parse_double("1e-999", value);   // true, 0
///     try_parse_double("1e999", value);    // false
[[nodiscard]] bool try_parse_double(std::string_view text, double& value);

}  // namespace nurl::core::text
