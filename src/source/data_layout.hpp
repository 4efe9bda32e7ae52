/// @file
/// What the cards of a molecule group are for.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// How `COORD` of `$CONTRL` lays the atoms out.
enum class CoordinateStyle : std::int32_t {
    Cartesian,   ///< UNIQUE, CART, PRINAXIS: name, charge, x, y, z
    Hint,        ///< HINT: name, charge, CONX and what belongs to it
    ZMatrix,     ///< ZMT: internal coordinates, then the values of named ones
    MopacStyle,  ///< ZMTMPC: internal coordinates, numbers only
    None,        ///< FRAGONLY, TINKER: no molecule is read
};

/// One atom with the cards under it. A card without words is blank.
struct AtomCards {
    Item card;                  ///< the atom itself
    std::vector<Item> basis;    ///< its basis set cards; empty when a `$BASIS` gives the basis set
    std::optional<Item> blank;  ///< the blank card that closes the basis set
};

/// The cards of a molecule group by what they are for. What is not there is empty.
struct DataLayout {
    std::optional<Item> title;        ///< the first card, whatever is on it
    std::optional<Item> point_group;  ///< the second card
    std::vector<Item> axis;           ///< what follows a point group other than C1: one blank card,
                                      ///< or up to two cards with points. Empty when neither is
                                      ///< there, so that the first atom stands in its place
    std::vector<AtomCards> atoms;     ///< atoms, in order; of a Z-matrix too
    std::vector<Item> variables;      ///< `NAME value` cards behind a Z-matrix, blank ones left out
    std::vector<Item> rest;           ///< cards that fit nowhere: blank ones before and between
                                      ///< atoms, the one behind a Z-matrix, and all cards of a deck
                                      ///< whose molecule is not read
};

/// How the deck lays out its atoms: the value of `COORD` that counts, UNIQUE when there is none or
/// an unknown one.
[[nodiscard]] CoordinateStyle coordinate_style(const Deck& deck);

/// Whether the basis set stands under each atom: no visible `$BASIS`, and no `$DFTB`, which brings
/// one of its own. A Z-matrix cannot have basis set cards, whatever this says.
[[nodiscard]] bool has_inline_basis(const Deck& deck);

/// Whether the words of a point group card name C1. Lower case counts.
[[nodiscard]] bool is_c1(const Deck& deck, const Item& point_group);

/// What other groups say of how a deck has its molecule read.
struct DataRules {
    CoordinateStyle style = CoordinateStyle::Cartesian;  ///< as `coordinate_style` gives it
    bool has_inline_basis = true;                        ///< as the function of that name gives it
};

/// The rules of a deck. Linear in the number of groups.
[[nodiscard]] DataRules data_rules(const Deck& deck);

/// Takes a molecule group apart. Linear in the length of the group; any text will do.
///
/// The atoms of `$DATA` are laid out as the rules of the deck say, those of `$DATAS` and `$DATAL`
/// are Cartesian with their basis set under each. Source: GAMESS manual, input description, $DATA.
///
/// @param data   a group of the kind `GroupKind::Data`
/// @param rules  those of the deck
[[nodiscard]] DataLayout read_data_layout(const Deck& deck, const Group& data,
                                          const DataRules& rules);

}  // namespace nurl::input::gamess::source
