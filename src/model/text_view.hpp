/// @file
/// Looking at ASCII text without copying it. Bytes above 127 and NUL are no letters and no blanks,
/// whatever the locale.
#pragma once

#include <algorithm>
#include <string_view>

namespace nurl::input::gamess::detail {

/// Whether `c` is white space: space, tab, newline, vertical tab, form feed or carriage return.
constexpr bool is_blank(char c) noexcept { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// Maps 'a'..'z' to 'A'..'Z' and leaves every other byte alone.
constexpr char to_upper(char c) noexcept {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// Whether `c` is an ASCII letter.
constexpr bool is_letter(char c) noexcept { return to_upper(c) >= 'A' && to_upper(c) <= 'Z'; }

/// Whether `c` may stand in a keyword: a letter, a digit or `_`.
constexpr bool is_name_character(char c) noexcept {
    return is_letter(c) || (c >= '0' && c <= '9') || c == '_';
}

/// The part of `text` between the characters at its ends for which `drop` is true.
template <class Predicate>
constexpr std::string_view trim_view_if(std::string_view text, Predicate drop) noexcept {
    while (!text.empty() && drop(text.front())) text.remove_prefix(1);
    while (!text.empty() && drop(text.back())) text.remove_suffix(1);
    return text;
}

/// The part of `text` without white space at its ends, as `nurl::core::text::trim` copies it.
constexpr std::string_view trim_view(std::string_view text) noexcept {
    return trim_view_if(text, is_blank);
}

/// Whether `text` is empty or all white space.
constexpr bool is_blank_text(std::string_view text) noexcept { return trim_view(text).empty(); }

/// `text` without one leading `$`.
constexpr std::string_view without_dollar(std::string_view text) noexcept {
    if (text.starts_with('$')) text.remove_prefix(1);
    return text;
}

/// `text` without an index suffix: cut at its first `(` when a `)` ends it.
constexpr std::string_view without_index(std::string_view text) noexcept {
    return text.ends_with(')') ? text.substr(0, text.find('(')) : text;
}

/// `text` without a UTF-8 byte-order mark at its start.
constexpr std::string_view without_byte_order_mark(std::string_view text) noexcept {
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (text.starts_with(mark)) text.remove_prefix(mark.size());
    return text;
}

/// Whether two texts are the same but for the case of ASCII letters.
constexpr bool equal_ignoring_case(std::string_view a, std::string_view b) noexcept {
    return std::ranges::equal(a, b, {}, to_upper, to_upper);
}

/// Whether `text` begins with `prefix` but for the case of ASCII letters.
constexpr bool starts_with_ignoring_case(std::string_view text, std::string_view prefix) noexcept {
    return equal_ignoring_case(text.substr(0, prefix.size()), prefix);
}

/// Whether trimmed free text of a group is a comment: it begins with `!` or `#`.
constexpr bool is_comment(std::string_view trimmed) noexcept {
    return trimmed.starts_with('!') || trimmed.starts_with('#');
}

}  // namespace nurl::input::gamess::detail
