/// @file
/// Cutting keyword text into entries and the text between them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// Appends the pairs in `text` to `entries`, keys in upper case and values trimmed.
///
/// @param leftover  replaced by the text before, between and behind the pairs, joined without
///                  separators and not trimmed; its memory is reused
void split_pairs(std::string_view text, std::vector<KeyValue>& entries, std::string& leftover);

}  // namespace nurl::input::gamess::detail
