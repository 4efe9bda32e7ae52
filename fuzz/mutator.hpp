/// @file
/// Changes of deck text that a fuzzer seldom hits upon by itself.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nurl::fuzz {

/// Cuts a text into tokens: names with their `$`, numbers, runs of blanks, line ends, and single
/// characters. Joined again they give the text. Linear in the length of the text.
[[nodiscard]] std::vector<std::string_view> tokens_of(std::string_view text);

/// Changes a deck at one to four places: tokens of the format are inserted, deleted, doubled,
/// exchanged or replaced, lines doubled, moved or deleted, and stretches put into a group.
///
/// The same text and seed give the same deck. Linear in the length of the text.
[[nodiscard]] std::string mutate_deck(std::string_view text, unsigned seed);

}  // namespace nurl::fuzz
