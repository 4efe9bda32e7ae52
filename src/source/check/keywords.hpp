/// @file
/// Rules about keywords and what stands between them.
#pragma once

#include <array>

#include "source/check/rule_row.hpp"

namespace nurl::input::gamess::source::checks {

/// Keywords that the schema does not list for their group.
void find_unknown_keyword(const Context& context, Findings& findings);
/// Keywords whose value does not count, because it is given again.
void find_repeated_keyword(const Context& context, Findings& findings);
/// Words in structured groups that belong to no keyword.
void find_stray_text(const Context& context, Findings& findings);
/// Keywords in comments that the document reader takes for live ones.
void find_commented_keyword(const Context& context, Findings& findings);

/// The rules of this room.
inline constexpr auto keyword_rules = std::to_array<RuleRow>({
    {{"commented-keyword", validation::Severity::Info,
      "a keyword behind a ! that reading the deck as a document turns on",
      "GAMESS passes over what stands behind a ! in a group with keywords. The document reader of "
      "this library (parse_string and what builds on it) does not know comments and takes a "
      "KEY=value "
      "there for a keyword of the group, so a document written again has it turned on. Work on "
      "such "
      "a deck in its text, or take the = out of the comment."},
     find_commented_keyword},
    {{"repeated-keyword", validation::Severity::Info,
      "a keyword whose value is replaced further on",
      "When a keyword is given several times, in one copy of its group or in several, GAMESS takes "
      "the last value. The finding stands at the values that do not count. Remove them, unless the "
      "deck is meant to override itself."},
     find_repeated_keyword},
    {{"stray-text", validation::Severity::Error,
      "text in a structured group that belongs to no keyword",
      "$CONTRL, $SYSTEM, $BASIS, $SCF and $GUESS hold KEY=value text and comments, nothing else. A "
      "word that belongs to no keyword is not read as what it was meant to be. Often a = is "
      "missing, or the ! in front of a comment, or the $END of the group."},
     find_stray_text},
    {{"unknown-keyword", validation::Severity::Warning, "a keyword that is not known in its group",
      "The group has no such keyword, as far as the schema of this library knows. A keyword that "
      "is misspelt, or belongs to another group, does not do what it says. One that is newer than "
      "the schema, or of a program that descends from GAMESS, is reported too."},
     find_unknown_keyword},
});

}  // namespace nurl::input::gamess::source::checks
