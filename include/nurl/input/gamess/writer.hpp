/// @file
/// Spelling of values in deck text. Whole decks are written by `GamessInput::to_string` and
/// `GamessInput::write_file`.
#pragma once

#include <string>

#include "nurl/input/gamess/export.hpp"

namespace nurl::input::gamess {

/// The text of a logical value. @return ".T." for true, ".F." for false
[[nodiscard]] NURL_GMS_INP_EXPORT std::string format_boolean(bool value);

}  // namespace nurl::input::gamess
