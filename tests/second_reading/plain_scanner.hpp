/// @file
/// A second scanner of `KEY=VALUE` pairs, written for plainness, to compare the real one with.
#pragma once

#include <string>
#include <vector>

#include "nurl/input/gamess/reader.hpp"

namespace nurl::test {

/// Finds the pairs of a stretch of group text. Looks at the rest of the text again behind each word
/// and each run of blanks.
[[nodiscard]] std::vector<input::gamess::detail::ScannedKeyValue> scan_plainly(
    const std::string& text);

}  // namespace nurl::test
