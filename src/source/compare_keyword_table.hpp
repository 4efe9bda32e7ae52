/// @file
/// The keywords of a group over all its copies.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/compare.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// One element of an array; the value of a scalar is its first.
struct ArrayElement {
    std::size_t index = 1;
    std::string_view word;  ///< of the deck's text
    std::size_t piece = 0;  ///< which of the keyword's pieces sets it
};

/// A keyword with all that the copies of its group give it.
struct MergedKeyword {
    std::string name;  ///< upper case, without an index that is one number; other indices stay
    std::vector<Item> pieces;            ///< where it is given, in the order of the text
    std::vector<ArrayElement> elements;  ///< the ones that count, by ascending index
};

/// Words of a keyword group that belong to no keyword.
struct StrayText {
    std::string behind;                   ///< the keyword that precedes them; may be empty
    std::vector<std::string_view> words;  ///< of the deck's text
    Position position;                    ///< of the first word
};

/// The content of a keyword group over all its copies.
struct MergedGroup {
    std::vector<MergedKeyword> keywords;  ///< in the order of their first places
    std::vector<StrayText> texts;         ///< in the order of the text
};

/// Merges the copies of a keyword group. `KEY` and `KEY(1)` are one keyword, `KEY(i)=a,b` sets the
/// elements `i` and `i+1`, the last value of an element counts. O(n log n) in the length of the
/// copies.
[[nodiscard]] MergedGroup merge_copies(const Deck& deck, std::span<const Group> copies);

/// Whether the last place of a keyword gives it no value.
[[nodiscard]] bool ends_empty(const MergedKeyword& keyword) noexcept;

}  // namespace nurl::input::gamess::source
