/// @file
/// Text of one keyword group.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// The size of the block of a group as text, or a little more. Linear in the number of entries and
/// lines.
[[nodiscard]] std::size_t group_block_size(const NamedSection& section) noexcept;

/// Appends the block of a group: a blank, the header, the entries that `append_entry` would take,
/// the raw lines and `$END`, without a final newline.
///
/// Raw lines that are all blank are left out. Otherwise every one of them stands as it is on a line
/// of its own.
///
/// @param header  the name with its `$`
void append_group_block(std::string_view header, std::span<const KeyValue> entries,
                        std::span<const std::string> raw_lines, std::string& text);

}  // namespace nurl::input::gamess::detail
