/// @file
/// Lists of keyword entries.
#pragma once

#include <string_view>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// Appends an entry with its key in upper case and both texts trimmed; nothing when either is
/// blank.
void append_entry(std::vector<KeyValue>& entries, std::string_view key, std::string_view value);

/// An entry with its key trimmed and in upper case and its value trimmed.
[[nodiscard]] KeyValue normalised_entry(std::string_view key, std::string_view value);

}  // namespace nurl::input::gamess::detail
