/// @file
/// The names of point groups.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace nurl::input::gamess::source::checks {

/// The highest order of an axis that GAMESS takes.
inline constexpr std::int64_t highest_axis_order = 8;

/// What the first word of a point group card says.
struct PointGroupName {
    bool is_known = false;     ///< GAMESS knows the name
    bool needs_order = false;  ///< a number follows the name
    std::string written_as;  ///< what GAMESS writes for another notation: `CNV 2` for `C2v`; empty
                             ///< for known names and those that cannot be told
};

/// Reads a word, in any letter case.
[[nodiscard]] PointGroupName read_point_group(std::string_view word);

}  // namespace nurl::input::gamess::source::checks
