/// @file
/// The words of a value or a card as they are compared: with what is missing between commas.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// Words to compare. An empty one stands for what is missing in front of a comma.
using ComparedWords = std::vector<std::string_view>;

/// How two words are compared.
enum class WordRule {
    Exact,    ///< byte by byte
    ByValue,  ///< by `same_word`
    Padded,   ///< by `same_word`, where words missing at the end are zero
};

/// The words of a card. Valid as long as the text. Linear in the length of the card.
[[nodiscard]] ComparedWords card_words(std::string_view text, const Item& card);

/// The words of a keyword's value. Valid as long as the text. Linear in the length of the value.
///
/// @param glues_lines  a value goes on in the next line only behind a `>`; where it does so
///                     without one, a word that is a line end stands for that
[[nodiscard]] ComparedWords value_words(std::string_view text, const Item& keyword,
                                        bool glues_lines);

/// Whether two lists of words are the same by a rule.
[[nodiscard]] bool same_words(const ComparedWords& a, const ComparedWords& b, WordRule rule);

/// The name of a group as a difference gives it: its first 80 bytes. A deck may have as many
/// differences as its longest name has letters.
[[nodiscard]] std::string shown_name(std::string_view name);

/// The words with a blank between them.
[[nodiscard]] std::string joined(const ComparedWords& words);

}  // namespace nurl::input::gamess::source
