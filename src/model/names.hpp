/// @file
/// Canonical names of groups, as the document and the writer use them.
#pragma once

#include <string>
#include <string_view>

namespace nurl::input::gamess::detail {

/// Whether two group names are the same in canonical form. Copies nothing.
[[nodiscard]] bool same_section_name(std::string_view a, std::string_view b) noexcept;

/// The canonical name of a group: trimmed, upper case, without one leading `$`; "SECTION" when
/// nothing is left.
[[nodiscard]] std::string bare_section_name(std::string_view name);

/// The canonical name behind a `$`, as it stands in a header: "$SECTION" when `name` is empty.
[[nodiscard]] std::string dollar_section_name(std::string_view name);

}  // namespace nurl::input::gamess::detail
