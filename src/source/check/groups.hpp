/// @file
/// Rules about which groups a deck has.
#pragma once

#include <array>

#include "source/check/rule_row.hpp"

namespace nurl::input::gamess::source::checks {

/// Visible groups that neither the schema knows nor the deck names itself.
void find_unknown_group(const Context& context, Findings& findings);
/// Second and further copies of visible groups, those that are meant to be repeated left out.
void find_repeated_group(const Context& context, Findings& findings);

/// The rules of this room.
inline constexpr auto group_rules = std::to_array<RuleRow>({
    {{"repeated-group", validation::Severity::Info, "a group that stands several times",
      "GAMESS reads all copies of a group with keywords, and of a keyword given in several the "
      "last "
      "value counts. Of every other group, such as $DATA or $VEC, only the first copy is read: the "
      "search begins at the top of the file. This is often meant; it is worth a look when a value "
      "does not do what it says. $FCM is to be repeated and left out."},
     find_repeated_group},
    {{"unknown-group", validation::Severity::Info, "a group that is not known",
      "GAMESS looks for the groups it needs and never reads others, so that a misspelt group is "
      "passed over without a message and its keywords keep their defaults. Groups that the deck "
      "names itself, by BASNAM in $BASIS or FRAGNAME in $EFRAG, are known. Compare the spelling "
      "with the manual; a group newer than the schema of this library is reported too."},
     find_unknown_group},
});

}  // namespace nurl::input::gamess::source::checks
