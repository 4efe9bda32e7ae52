/// @file
/// The entries that a structured group is written with.
#pragma once

#include <string_view>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// The entries of a structured group: the members that are given, in the order of its table, then
/// the record's further entries. Keys are in upper case; entries with a blank key or value are left
/// out.
///
/// @param name  bare upper-case name
/// @return      empty for a group that does not belong to the deck and for any other name
[[nodiscard]] std::vector<KeyValue> structured_entries(const GamessInput& input,
                                                       std::string_view name);

}  // namespace nurl::input::gamess::detail
