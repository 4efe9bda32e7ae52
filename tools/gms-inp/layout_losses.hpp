/// @file
/// What of a deck's text the canonical layout does not keep.
///
/// The document model holds what is in a deck, not how it was laid out. This room compares the two,
/// so that nobody is surprised by a deck that was read and written.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace gms_inp {

/// Says what the canonical layout leaves out, moves or joins.
///
/// Not worth a sentence are letter case, blanks that separate, the order of keywords in a
/// structured group, the kind of line ends, and a `$END` that is added.
///
/// @param text     the deck as it was read
/// @param input    the document that was read from it and is to be written
/// @param written  its text
/// @return         a sentence for each kind of loss, with a count; empty when nothing is lost
///
/// Linear in the length of the texts.
[[nodiscard]] std::vector<std::string> layout_losses(std::string_view text,
                                                     const nurl::input::gamess::GamessInput& input,
                                                     std::string_view written);

}  // namespace gms_inp
