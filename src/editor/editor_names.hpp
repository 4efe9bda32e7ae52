/// @file
/// Names as the editor compares them. They follow rules of their own: only blank, tab, LF and CR
/// are trimmed, and an empty name stays empty.
#pragma once

#include <string>
#include <string_view>

namespace nurl::input::gamess::detail {

/// `text` without blank, tab, LF and CR at its ends.
[[nodiscard]] std::string_view editor_trim(std::string_view text) noexcept;

/// Whether nothing is left of `text` after `editor_trim`.
[[nodiscard]] bool is_editor_blank(std::string_view text) noexcept;

/// A group name: trimmed, upper case, one leading `$` dropped.
[[nodiscard]] std::string editor_section_name(std::string_view name);

/// Whether `editor_section_name` makes a certain name of a group's. Copies nothing.
///
/// @param expected  as `editor_section_name` gives it
[[nodiscard]] bool is_editor_section(std::string_view name, std::string_view expected) noexcept;

/// `editor_section_name` behind a `$`; "$SECTION" when nothing is left.
[[nodiscard]] std::string editor_dollar_name(std::string_view name);

/// A keyword: trimmed, upper case.
[[nodiscard]] std::string editor_key_name(std::string_view key);

/// Whether two keywords have the same `editor_key_name`. Copies nothing.
[[nodiscard]] bool same_editor_key(std::string_view a, std::string_view b) noexcept;

}  // namespace nurl::input::gamess::detail
