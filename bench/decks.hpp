/// @file
/// The decks that the benchmarks work on.
#pragma once

#include <cstddef>
#include <string>

namespace nurl::bench {

/// A deck with a small `$CONTRL` and a `$VEC` of about `bytes` bytes in lines of 80 columns.
[[nodiscard]] std::string orbital_deck(std::size_t bytes);

/// A deck with a `$DATA` of that many atoms.
[[nodiscard]] std::string atom_deck(std::size_t atoms);

/// A deck of about `bytes` bytes of keyword groups: lines of 80 columns with five pairs each, 20
/// lines a group.
[[nodiscard]] std::string keyword_deck(std::size_t bytes);

/// A deck of about `bytes` bytes that are the values of one keyword, nine numbers a line.
[[nodiscard]] std::string list_deck(std::size_t bytes);

/// A deck of one keyword group with that many different keywords, one a line.
[[nodiscard]] std::string wide_group_deck(std::size_t keywords);

/// A geometry optimisation as people write them, 40 lines.
[[nodiscard]] std::string optimisation_deck();

}  // namespace nurl::bench
