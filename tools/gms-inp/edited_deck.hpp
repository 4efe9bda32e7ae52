/// @file
/// What the commands that write a deck have in common.
#pragma once

#include <string>

#include "deck_source.hpp"
#include "nurl/input/gamess/editor.hpp"

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

/// Writes a document in canonical layout, all or nothing when to a file, and says on standard error
/// what of the deck's text that layout does not keep.
///
/// @throws std::runtime_error when it cannot be written
void write_edited(const Deck& deck, const nurl::input::gamess::GamessInput& edited,
                  const EditTarget& target);

}  // namespace gms_inp
