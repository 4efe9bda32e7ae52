/// @file
/// Random decks that the document reader and GAMESS read alike.
#pragma once

#include <string>

#include <rapidcheck.h>

namespace nurl::test {

/// A deck of generic keyword groups, each closed and given once, each keyword at most once in a
/// group, with values on one line, no comments, and lines of less than 60 columns.
[[nodiscard]] rc::Gen<std::string> plain_deck();

/// A keyword without an index.
[[nodiscard]] rc::Gen<std::string> plain_keyword();

/// A word or a short list of words with commas or single blanks.
[[nodiscard]] rc::Gen<std::string> plain_value();

}  // namespace nurl::test
