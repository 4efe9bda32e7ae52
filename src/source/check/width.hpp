/// @file
/// The rule about the width of lines.
#pragma once

#include <array>

#include "source/check/rule_row.hpp"

namespace nurl::input::gamess::source::checks {

/// Lines of visible groups with text beyond column 80 that is neither a comment nor a title. Groups
/// of fixed columns have widths of their own and are left out.
void find_beyond_column_80(const Context& context, Findings& findings);

/// The rule of this room.
inline constexpr auto width_rules = std::to_array<RuleRow>({
    {{"beyond-column-80", validation::Severity::Warning, "text beyond column 80",
      "GAMESS reads lines of 80 columns. What stands beyond them is lost without a message, as far "
      "as is known: a keyword keeps its default, a list loses its end, a group its $END. Comments "
      "and "
      "titles do no harm there. Begin a new line, which needs no sign in a group with keywords."},
     find_beyond_column_80},
});

}  // namespace nurl::input::gamess::source::checks
