/// @file
/// Comparing groups without keywords.
#pragma once

#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/compare.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "source/compare_words.hpp"
#include "source/data_layout.hpp"

namespace nurl::input::gamess::source {

/// A card as it is compared.
struct ComparedCard {
    std::string_view part;            ///< what it is for in `$DATA`, else empty
    Span span;                        ///< all of it
    Position position;                ///< where `span` begins
    WordRule rule = WordRule::Exact;  ///< how its words are compared
    bool is_text = false;             ///< it is compared as text, its words do not count
    std::string_view text;            ///< that text; of the deck
    ComparedWords words;              ///< of the deck's text
};

/// One copy of a group in one deck.
struct Copy {
    const Deck& deck;
    const Group& group;
    const DataRules& rules;  ///< of the deck
};

/// Appends what two copies of a group without keywords say differently, in their order. Linear,
/// but for `$DATA`: O(n log n).
void compare_cards(const Copy& a, const Copy& b, std::vector<Difference>& differences);

}  // namespace nurl::input::gamess::source
