/// @file
/// Random decks with lines that are worth folding.
#pragma once

#include <string>

#include <rapidcheck.h>

namespace nurl::test {

/// A deck of closed keyword groups with scalars, lists, comments that end on their line or before,
/// commas and quoted texts. Its lines have up to some hundred columns, and no word has more than
/// twenty.
[[nodiscard]] rc::Gen<std::string> long_deck();

/// Pieces of decks in any order: headers, quotes, comments, signs and line ends wherever they
/// happen to be.
[[nodiscard]] rc::Gen<std::string> rough_deck();

}  // namespace nurl::test
