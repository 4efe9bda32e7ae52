/// @file
/// Values that are lists.
#pragma once

#include <string_view>
#include <vector>

namespace nurl::input::gamess::typed::detail {

/// The pieces between commas, trimmed, without the empty ones.
[[nodiscard]] std::vector<std::string_view> split_pieces(std::string_view text);

}  // namespace nurl::input::gamess::typed::detail
