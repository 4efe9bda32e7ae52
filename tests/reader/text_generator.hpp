/// @file
/// Random texts made of what decks are made of, in any order.
#pragma once

#include <string>

#include <rapidcheck.h>

namespace nurl::test {

/// Keywords, values, equals signs, parentheses, dollar signs and blanks of every kind.
rc::Gen<std::string> keyword_mixture();

/// Headers, ends, keywords, atoms, comments and line ends, with some odd bytes among them.
rc::Gen<std::string> deck_mixture();

}  // namespace nurl::test
