/// @file
/// Differences of two decks for people and for programs.
#pragma once

#include <span>
#include <string>

#include <nlohmann/json_fwd.hpp>

#include "nurl/input/gamess/source/compare.hpp"

namespace gms_inp {

/// How messages call the two decks.
struct DeckNames {
    std::string a;  ///< the first deck
    std::string b;  ///< the second deck
};

/// A group, keyword or line by its name: `CONTRL.MAXIT`, `DATA atom`, `VEC#2`.
[[nodiscard]] std::string place_of(const nurl::input::gamess::source::Difference& difference);

/// A difference as one or three lines, with control characters escaped:
///
///     CONTRL.MAXIT: 30 -> 50  (line 3 -> line 4)
///     CONTRL.ICHARG: 1  (only in b.inp, line 2)
///     DATA atom  (line 7)
///     - O 8.0 0.0 0.0 0.1
///     + O 8.0 0.0 0.0 0.2
[[nodiscard]] std::string text_of(const nurl::input::gamess::source::Difference& difference,
                                  const DeckNames& names);

/// An object with the names of both decks and the list of differences.
[[nodiscard]] nlohmann::ordered_json json_of(
    std::span<const nurl::input::gamess::source::Difference> differences, const DeckNames& names);

}  // namespace gms_inp
