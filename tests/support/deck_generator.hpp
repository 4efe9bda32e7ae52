/// @file
/// Random decks for properties.
///
/// The decks follow the grammar of the format as people use it: any mixture of groups, letter case,
/// blanks, comments, free text and forgotten `$END`. Four things are left out, since their
/// canonical text does not read back to the same document: a `$` inside a line, parentheses that do
/// not close, atom labels that are integers, and nuclear charges with more than six decimals.
#pragma once

#include <ostream>
#include <string>

#include <rapidcheck.h>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess {

/// How a failed property shows a document.
void showValue(const GamessInput& deck, std::ostream& stream);

}  // namespace nurl::input::gamess

namespace nurl::test {

/// The text of a deck, possibly without any group.
[[nodiscard]] rc::Gen<std::string> deck_text();

/// What such a text reads as; in some documents the last generic groups are groups added in code.
[[nodiscard]] rc::Gen<nurl::input::gamess::GamessInput> document();

/// Name of a group that has keywords, in any case, with and without a `$` and blanks around it.
[[nodiscard]] rc::Gen<std::string> group_name();

/// A keyword in any case, with and without an index and blanks around it: one of those that have a
/// member or another one.
[[nodiscard]] rc::Gen<std::string> keyword();

/// A value of one or more words, or nothing but blanks. Some are numbers or logical words.
[[nodiscard]] rc::Gen<std::string> value();

}  // namespace nurl::test
