/// @file
/// Taking a line of the schema file apart.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "model/text_view.hpp"

namespace nurl::input::gamess::schema {

/// A line without its comment. The view points into the line given.
struct SchemaLine {
    std::string_view text;        ///< trimmed; empty when there is nothing to read
    std::size_t indentation = 0;  ///< number of spaces in front; a tab counts as text
};

/// Cuts a `#` comment that is not within quotes, and measures the rest.
[[nodiscard]] SchemaLine read_line(std::string_view line) noexcept;

/// A `key: value` line. Both views point into the text given.
struct Property {
    std::string_view key;    ///< as `plain_word` gives it
    std::string_view value;  ///< trimmed, one pair of equal quotes around it dropped
};

/// Splits a trimmed line at its first colon; nothing when there is none.
[[nodiscard]] std::optional<Property> read_property(std::string_view text) noexcept;

/// Splits a list `[a, b]` at its commas, each item trimmed and one pair of equal quotes around it
/// dropped. Empty items are left out; a text without brackets is no list and gives none. The items
/// point into the text given.
[[nodiscard]] std::vector<std::string_view> read_list(std::string_view value);

/// Reads a logical word: true, yes, on, 1 or false, no, off, 0 in any case.
/// @return `otherwise` for every other text
[[nodiscard]] bool read_flag(std::string_view value, bool otherwise) noexcept;

/// A word as words are compared, but for the case of letters: trimmed, without a leading `$`.
[[nodiscard]] constexpr std::string_view plain_word(std::string_view text) noexcept {
    return detail::without_dollar(detail::trim_view(text));
}

/// Whether two words are the same once trimmed, without a leading `$` and without regard to case.
[[nodiscard]] bool is_word(std::string_view value, std::string_view word) noexcept;

}  // namespace nurl::input::gamess::schema
