/// @file
/// What the commands that write a deck have in common.
#pragma once

#include <string>
#include <vector>

#include "deck_source.hpp"
#include "keyword_path.hpp"
#include "nurl/input/gamess/model.hpp"

namespace gms_inp {

/// Where an edited deck comes from and goes to.
struct EditTarget {
    std::string file;          ///< the deck, or `-` for standard input
    std::string output = "-";  ///< where to write, or `-` for standard output
};

/// Makes sure that writing does not overwrite the deck that is read, whatever links lead there.
///
/// @throws std::runtime_error when both are the same file
void refuse_to_overwrite_input(const EditTarget& target);

/// Says how many copies of a group a deck has when there are several: only the first one is shown
/// or edited. To standard error.
void warn_of_copies(const Deck& deck, const std::string& group);

/// Makes sure that keywords that were set are read back from the written deck.
///
/// @throws std::runtime_error when a keyword reads differently or not at all
void check_that_values_read_back(const std::vector<Assignment>& assignments,
                                 const nurl::input::gamess::GamessInput& edited);

/// Writes a document in canonical layout, all or nothing when to a file.
///
/// @param output  a file, or `-` for standard output
/// @throws std::runtime_error when it cannot be written
void write_deck(const nurl::input::gamess::GamessInput& input, const std::string& output);

/// Writes a document as `write_deck` does, and says on standard error what of the deck's text that
/// layout does not keep.
///
/// @throws std::runtime_error when it cannot be written
void write_edited(const Deck& deck, const nurl::input::gamess::GamessInput& edited,
                  const EditTarget& target);

}  // namespace gms_inp
