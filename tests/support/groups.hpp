/// @file
/// Small decks for tests that make them in code.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace nurl::test {

/// The lists of the document model under short names.
using Entries = std::vector<nurl::input::gamess::KeyValue>;
using Lines = std::vector<std::string>;
using Groups = std::vector<nurl::input::gamess::NamedSection>;

/// A group without raw lines.
[[nodiscard]] inline nurl::input::gamess::NamedSection group(std::string name,
                                                             Entries entries = {}) {
    return {std::move(name), std::move(entries), {}};
}

/// A group with raw lines.
[[nodiscard]] inline nurl::input::gamess::NamedSection group(std::string name, Entries entries,
                                                             Lines raw_lines) {
    return {std::move(name), std::move(entries), std::move(raw_lines)};
}

/// A deck that holds nothing but groups of `sections`.
[[nodiscard]] inline nurl::input::gamess::GamessInput deck_of(Groups sections) {
    nurl::input::gamess::GamessInput deck;
    deck.sections = std::move(sections);
    return deck;
}

}  // namespace nurl::test
