/// @file
/// Checking the text of a deck.
#pragma once

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/source/check.hpp"

namespace nurl::bench::growth {

/// Counts what it costs to find all that is wrong in a deck, which must be something.
inline void check(const Input& input) {
    namespace source = nurl::input::gamess::source;
    const source::Deck deck{input.text};
    require(!measured([&] { return source::check(deck); }).empty());
}

/// The same for a deck in which nothing is wrong.
inline void check_faultless(const Input& input) {
    namespace source = nurl::input::gamess::source;
    const source::Deck deck{input.text};
    require(measured([&] { return source::check(deck); }).empty());
}

}  // namespace nurl::bench::growth
