/// @file
/// Getting a deck from a file or from standard input.
#pragma once

#include <string>

#include "nurl/input/gamess/model.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace gms_inp {

/// A deck as its text.
struct TextDeck {
    std::string name;                           ///< how messages call it
    nurl::input::gamess::source::Deck content;  ///< its text, indexed; has a group that
                                                ///< GAMESS sees or that is known
};

/// A deck as the document model holds it.
struct ModelDeck {
    std::string name;                         ///< how messages call it
    std::string text;                         ///< its bytes
    nurl::input::gamess::ParseResult result;  ///< what the reader made of them; always `ok`
};

/// Reads a file as it is.
///
/// @param path  a file, or `-` for standard input
/// @throws std::runtime_error when it cannot be read; the message names it
[[nodiscard]] std::string read_text(const std::string& path);

/// Reads a deck to look at its text or to edit it.
///
/// @param path  a file, or `-` for standard input
/// @throws std::runtime_error when it cannot be read, or holds no group that GAMESS sees and none
///         that is known, as a script with a `$PATH`; the message names it
[[nodiscard]] TextDeck read_deck(const std::string& path);

/// Reads a deck into the document model. Any group will do.
[[nodiscard]] ModelDeck read_model(const std::string& path);

}  // namespace gms_inp
