/// @file
/// Mending a deck by the fixes that its findings bring along.
#pragma once

#include <vector>

#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace gms_inp {

/// A deck after its fixes.
struct FixedDeck {
    nurl::input::gamess::source::Deck deck;                     ///< with its new text
    std::vector<nurl::input::gamess::source::Finding> fixed;    ///< by place in the text they were
                                                                ///< found in
    std::vector<nurl::input::gamess::source::Finding> remains;  ///< findings of the new text
};

/// Checks a deck, applies the fixes, and starts again until there is none, since a fix may bring
/// something to light. Of two fixes that want the same bytes the later one waits for the next
/// round. A few rounds are the limit, so findings with a fix may remain.
[[nodiscard]] FixedDeck fix_deck(const nurl::input::gamess::source::Deck& deck,
                                 const nurl::input::gamess::source::CheckOptions& options);

}  // namespace gms_inp
