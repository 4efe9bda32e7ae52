/// @file
/// Choosing the one copy of a group that a command takes out of a deck or punched file.
#pragma once

#include <optional>

#include "deck_source.hpp"
#include "keyword_path.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace gms_inp {

/// The copy that `path` names; the last one when it names none, which standard error then says if
/// there are several. Nothing, with a message on standard error, when there is no such copy.
///
/// @throws std::runtime_error when the copy is not closed by `$END`
[[nodiscard]] std::optional<nurl::input::gamess::source::Group> choose_group(const TextDeck& deck,
                                                                             const GroupPath& path);

}  // namespace gms_inp
