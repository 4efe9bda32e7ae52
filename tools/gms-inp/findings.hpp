/// @file
/// Everything that can be said about a deck: what reading it had to tolerate, and what the schema
/// does not describe.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "deck_source.hpp"
#include "diagnostics.hpp"
#include "nurl/input/gamess/validation.hpp"

namespace gms_inp {

/// One finding.
struct Finding {
    Weight weight = Weight::Info;  ///< `Info`, `Warning` or `Error`
    std::string section;           ///< group it concerns: lower case, no `$`
    std::string key;               ///< keyword it concerns, upper case, or empty
    std::string message;           ///< a complete sentence
    std::size_t line = 0;          ///< first line it concerns, from 1; 0 when not known
    std::size_t count = 1;         ///< number of places in the deck it concerns
};

/// Collects the findings of a deck, in the order of their lines.
///
/// The reader's warnings count as warnings. Findings that say the same are one finding: validation
/// reports an unknown keyword of a structured group once from its record and once from its generic
/// copy, though it stands in the deck once; `count` is taken from the text.
///
/// @param options  which findings are wanted; without `report_raw_text_in_structured`, the
///                 reader's warnings about such text are left out, too
[[nodiscard]] std::vector<Finding> collect_findings(
    const Deck& deck, const nurl::input::gamess::validation::Options& options);

}  // namespace gms_inp
