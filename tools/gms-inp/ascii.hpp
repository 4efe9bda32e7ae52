/// @file
/// Letters and blanks of ASCII, whatever the locale.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gms_inp {

/// Whether a byte is a space, tab, newline, vertical tab, form feed or carriage return.
[[nodiscard]] constexpr bool is_blank(char c) noexcept {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Maps 'a'..'z' to 'A'..'Z' and leaves every other byte alone.
[[nodiscard]] constexpr char to_upper(char c) noexcept {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// `text` without the blanks at its ends; a view into `text`.
[[nodiscard]] std::string_view trim(std::string_view text) noexcept;

/// A copy of `text` with its ASCII letters in upper case.
[[nodiscard]] std::string to_upper(std::string_view text);

/// Whether `text` starts with `prefix`, given in upper case, in any letter case.
[[nodiscard]] bool starts_with_ignoring_case(std::string_view text,
                                             std::string_view prefix) noexcept;

/// The words of `text` between blanks; views into `text`.
[[nodiscard]] std::vector<std::string_view> words_of(std::string_view text);

}  // namespace gms_inp
