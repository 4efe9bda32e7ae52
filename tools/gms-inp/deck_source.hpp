/// @file
/// Getting a deck from a file or from standard input.
#pragma once

#include <string>

#include "nurl/input/gamess/model.hpp"

namespace gms_inp {

/// A deck as it came.
struct Deck {
    std::string name;                         ///< how messages call it
    std::string text;                         ///< its bytes
    nurl::input::gamess::ParseResult result;  ///< what the reader made of them; always `ok`
};

/// Reads a file as it is.
///
/// @param path  a file, or `-` for standard input
/// @throws std::runtime_error when it cannot be read; the message names it
[[nodiscard]] std::string read_text(const std::string& path);

/// Reads a deck.
///
/// @param path  a file, or `-` for standard input
/// @throws std::runtime_error when it cannot be read, or holds no group; the message names it
[[nodiscard]] Deck read_deck(const std::string& path);

}  // namespace gms_inp
