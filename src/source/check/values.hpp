/// @file
/// Rules about the values of keywords.
#pragma once

#include <array>

#include "source/check/rule_row.hpp"

namespace nurl::input::gamess::source::checks {

/// Values that are not of the type of their keyword, or missing.
void find_value_type(const Context& context, Findings& findings);
/// Words of numeric keywords and of atoms that look like numbers and are none.
void find_unreadable_number(const Context& context, Findings& findings);
/// Values that are not among those known for their keyword.
void find_value_choice(const Context& context, Findings& findings);
/// Further words behind the value of a keyword that takes one.
void find_extra_value(const Context& context, Findings& findings);

/// The rules of this room.
inline constexpr auto value_rules = std::to_array<RuleRow>({
    {{"extra-value", validation::Severity::Warning,
      "more than one value for a keyword that takes one",
      "A value goes on up to the next KEY=, over blanks, commas and line ends. A keyword that is "
      "no array takes a single word, and those behind it are read as something else than what they "
      "were meant to be. Often a = is missing, or the ! in front of a comment."},
     find_extra_value},
    {{"unreadable-number", validation::Severity::Error, "a number that cannot be read",
      "Numbers are written with digits, one decimal point at most and an exponent by E or D: 30, "
      "3.E1 and 3.0D+01 are equal. Other words are not read as the number that is meant. Letters "
      "in place of digits (O for 0, l for 1) and a second point are the usual reasons."},
     find_unreadable_number},
    {{"value-choice", validation::Severity::Warning,
      "a value that is not among those known for its keyword",
      "The keyword takes one of a set of words or numbers, and this is none of them as far as the "
      "schema of this library knows. GAMESS stops at such a value, or takes it for another one. A "
      "value newer than the schema is reported too."},
     find_value_choice},
    {{"value-type", validation::Severity::Error,
      "a value that is not of the type of its keyword, or no value",
      "A keyword takes an integer, a number, a logical value or a word, and a value of another "
      "type is not read as it is written. Logical values are .TRUE., .FALSE., .T. and .F. with "
      "both periods, in any letter case; only $REKS takes yes and no."},
     find_value_type},
});

}  // namespace nurl::input::gamess::source::checks
