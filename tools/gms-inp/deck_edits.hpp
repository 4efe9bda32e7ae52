/// @file
/// What the commands that edit decks have in common.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "deck_source.hpp"
#include "exit_code.hpp"
#include "keyword_path.hpp"

namespace CLI {  // NOLINT(readability-identifier-naming): not our name
class App;
}  // namespace CLI

namespace gms_inp {

/// Where edited decks come from and go to.
struct EditTarget {
    std::vector<std::string> files;  ///< the decks, or `-` for standard input
    std::string output = "-";        ///< where to write, or `-` for standard output
    bool in_place = false;           ///< each deck is replaced, `output` does not count
    bool only_look = false;          ///< nothing is written: names of decks that would change
};

/// An edit of one deck.
///
/// @return `ExitCode::Fine` when the deck is to be written
/// @throws std::runtime_error when it cannot be done
using DeckEdit = std::function<ExitCode(TextDeck&)>;

/// Sets keywords, one behind the other.
///
/// @throws std::runtime_error when one cannot be set; the message names it
void set_keywords(nurl::input::gamess::source::Deck& deck,
                  const std::vector<Assignment>& assignments);

/// Declares `-o` and `-i`, which exclude each other.
void add_target_options(CLI::App& app, EditTarget& target);

/// Reads, edits and writes decks, one behind the other.
///
/// A deck edited in place is written only when its text changed, as a whole or not at all. What
/// goes wrong with a deck is told on standard error; the others are edited all the same.
///
/// @return the worst of what the edits returned, `ExitCode::Trouble` when one threw; when only
///         looking, `ExitCode::Findings` when a deck would change
/// @throws std::runtime_error when the target makes no sense: several decks and one output,
///         standard input in place, an output that is the deck itself
[[nodiscard]] ExitCode edit_decks(const EditTarget& target, const DeckEdit& edit);

}  // namespace gms_inp
