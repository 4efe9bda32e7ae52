/// @file
/// Rules about where groups begin and end.
#pragma once

#include <array>

#include "source/check/rule_row.hpp"

namespace nurl::input::gamess::source::checks {

/// Headers of known groups that are the first text of their line and not in column 2.
void find_header_column(const Context& context, Findings& findings);
/// Headers behind the `$END` of another group on one line.
void find_second_group(const Context& context, Findings& findings);
/// Groups without `$END`, those of fixed columns and those with a hidden one left out.
void find_missing_end(const Context& context, Findings& findings);
/// Groups without `$END` that have one behind a `!`.
void find_hidden_end(const Context& context, Findings& findings);
/// Groups of fixed columns without `$END`.
void find_open_punched_group(const Context& context, Findings& findings);
/// Headers of formatted groups that are not in capital letters.
void find_lower_case_group(const Context& context, Findings& findings);
/// Ends of formatted groups that are not in capital letters.
void find_lower_case_end(const Context& context, Findings& findings);

/// The rules of this room.
inline constexpr auto layout_rules = std::to_array<RuleRow>({
    {{"header-column", validation::Severity::Error, "a group header outside column 2",
      "GAMESS finds a group only when the $ of its name stands in column 2, behind one space. A "
      "header in another column is taken for a comment: the whole group is passed over without a "
      "message, and its keywords keep their defaults. Move the $ to column 2."},
     find_header_column},
    {{"hidden-end", validation::Severity::Error, "a $END that an open ! turns into a comment",
      "Inside a group a ! begins a comment that ends at the next ! or with the line. A $END in it "
      "does not count, so the group runs on into what follows. Close the comment with a second !, "
      "or put the $END on a line of its own."},
     find_hidden_end},
    {{"lower-case-end", validation::Severity::Info,
      "the $END of a formatted group in small letters",
      "The manual asks for capital letters in the lines of formatted groups such as $VEC, the $END "
      "included. GAMESS reads them by a number of lines that it knows beforehand and seldom looks "
      "for the end, but other programs may."},
     find_lower_case_end},
    {{"lower-case-group", validation::Severity::Error,
      "a formatted group whose header is not in capital letters",
      "GAMESS takes upper and lower case for equal, but not in the groups that an earlier run "
      "punched: $VEC, $HESS, $GRAD, $DIPDR and $VIB, with or without a number. Their header must "
      "be "
      "in capital letters, or the group is not found."},
     find_lower_case_group},
    {{"missing-end", validation::Severity::Error, "a group without $END",
      "A group ends at its $END and nowhere else. Without one, GAMESS reads the next group as more "
      "of the same, or runs into the end of the file. Put a $END behind the last keyword, or on a "
      "line of its own behind the last line of a group without keywords."},
     find_missing_end},
    {{"open-punched-group", validation::Severity::Info, "a punched group without $END",
      "Groups of fixed columns such as $VEC are read by a number of lines that GAMESS knows "
      "beforehand, so that a missing $END often does no harm. Programs that look for the end of "
      "the "
      "group are led astray. Put a $END behind the last line."},
     find_open_punched_group},
    {{"second-group", validation::Severity::Error,
      "a group behind the $END of another on the same line",
      "What stands behind $END on a line is a comment for GAMESS. A second group there is passed "
      "over without a message, and its keywords keep their defaults. Begin it on a line of its "
      "own, "
      "with the $ in column 2."},
     find_second_group},
});

}  // namespace nurl::input::gamess::source::checks
