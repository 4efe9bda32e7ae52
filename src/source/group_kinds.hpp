/// @file
/// How the groups of a deck are read, by their names.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// How a group is read, as far as its name tells.
///
/// @param name  upper case, without `$`
[[nodiscard]] GroupKind kind_of_group(std::string_view name);

/// Whether a group may hold lines that begin with `$` and are no headers.
[[nodiscard]] bool has_inner_headers(std::string_view name) noexcept;

/// Whether GAMESS finds a group in whatever column its `$` stands.
[[nodiscard]] bool is_found_in_any_column(std::string_view name) noexcept;

/// Turns the groups that others name, by `BASNAM` in `$BASIS` and `FRAGNAME` in `$EFRAG`, into
/// free-format ones.
void mark_named_groups(std::string_view text, std::vector<Group>& groups);

}  // namespace nurl::input::gamess::source
