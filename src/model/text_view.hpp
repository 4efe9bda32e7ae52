/// @file
/// Looking at ASCII text without copying it. Bytes above 127 and NUL are no letters and no blanks,
/// whatever the locale.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

namespace nurl::input::gamess::detail {

/// What a character can be, one bit each.
enum CharacterClass : std::uint8_t {
    Blank = 1,
    Letter = 2,
    Digit = 4,
    Underscore = 8,
    Dollar = 16
};

/// The classes of every byte.
inline constexpr auto character_classes = [] {
    std::array<std::uint8_t, std::numeric_limits<unsigned char>::max() + 1> classes{};
    const auto mark = [&classes](std::string_view characters, CharacterClass as) {
        for (const char c : characters) classes.at(static_cast<unsigned char>(c)) |= as;
    };
    mark(" \t\n\v\f\r", Blank);
    mark("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", Letter);
    mark("0123456789", Digit);
    mark("_", Underscore);
    mark("$", Dollar);
    return classes;
}();

/// Whether `c` is in one of the classes, given as their bits.
constexpr bool is_in(char c, int classes) noexcept {
    return (character_classes[static_cast<unsigned char>(c)] & classes) != 0;
}

/// Whether `c` is white space: space, tab, newline, vertical tab, form feed or carriage return.
constexpr bool is_blank(char c) noexcept { return is_in(c, Blank); }

/// Maps 'a'..'z' to 'A'..'Z' and leaves every other byte alone.
constexpr char to_upper(char c) noexcept {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// Whether `c` is an ASCII letter.
constexpr bool is_letter(char c) noexcept { return is_in(c, Letter); }

/// The classes of what may stand in a keyword.
inline constexpr int name_characters = Letter | Digit | Underscore;

/// Whether `c` may stand in a keyword: a letter, a digit or `_`.
constexpr bool is_name_character(char c) noexcept { return is_in(c, name_characters); }

/// The first offset from `at` on whose character is in one of the classes, or the size of the text.
constexpr std::size_t find_class(std::string_view text, int classes, std::size_t at) noexcept {
    while (at < text.size() && !is_in(text[at], classes)) ++at;
    return at;
}

/// The first offset from `at` on whose character is in none of the classes, or the size of the
/// text.
constexpr std::size_t skip_class(std::string_view text, int classes, std::size_t at) noexcept {
    while (at < text.size() && is_in(text[at], classes)) ++at;
    return at;
}

/// Whether `text` is empty or all white space.
constexpr bool is_blank_text(std::string_view text) noexcept {
    return skip_class(text, Blank, 0) == text.size();
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
    return a.size() == b.size() && std::ranges::equal(a, b, {}, to_upper, to_upper);
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
