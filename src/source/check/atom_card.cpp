#include "source/check/atom_card.hpp"

#include <algorithm>
#include <span>

#include "source/check/element_name.hpp"
#include "source/word_value.hpp"

namespace nurl::input::gamess::source::checks {

bool is_like_atom(const Deck& deck, const Item& card) {
    constexpr std::size_t words_needed = 5;
    if (card.words.size() < words_needed) return false;
    const auto numbers = std::span{card.words}.subspan(1, words_needed - 1);
    return std::ranges::all_of(numbers,
                               [&deck](Span word) { return real_of(deck.text(word)).has_value(); });
}

bool is_certain_atom(const Deck& deck, const Item& card) {
    if (!is_like_atom(deck, card)) return false;
    return names_element(deck.text(card.words[0]), *real_of(deck.text(card.words[1])));
}

}  // namespace nurl::input::gamess::source::checks
