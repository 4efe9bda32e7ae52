/// @file
/// Characters, lines, words and numbers for the second readings, in the plainest way.
///
/// Everything is copied and nothing is shared with the library, so that a fault in one of the two
/// shows as a difference. Only ASCII has meaning, whatever the locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace nurl::test::plain {

using Lines = std::vector<std::string>;

/// Whether `c` is space, tab, newline, vertical tab, form feed or carriage return.
[[nodiscard]] bool is_blank(char c);

/// Whether `c` is an ASCII letter.
[[nodiscard]] bool is_letter(char c);

/// Whether `c` is a decimal digit.
[[nodiscard]] bool is_digit(char c);

/// `text` without the characters of `blanks` at its ends; all white space unless given.
[[nodiscard]] std::string trimmed(const std::string& text,
                                  const std::string& blanks = " \t\n\v\f\r");

/// `text` with its ASCII letters in upper case.
[[nodiscard]] std::string upper(const std::string& text);

/// The lines of a text, ended by LF, CR LF or a lone CR; a last end opens no further line.
[[nodiscard]] Lines lines_of(const std::string& text);

/// The words between the white space of a text.
[[nodiscard]] Lines words_of(const std::string& text);

/// A decimal integer of 32 bits with an optional sign; nothing for any other text.
[[nodiscard]] std::optional<std::int32_t> integer_of(const std::string& text);

/// A decimal number with an optional sign, point and exponent after E or D; nothing for any other
/// text and for a number that is too large. A number too small for a `double` is zero.
[[nodiscard]] std::optional<double> real_of(const std::string& text);

}  // namespace nurl::test::plain
