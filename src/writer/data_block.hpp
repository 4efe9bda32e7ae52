/// @file
/// Text of `$DATA`.
#pragma once

#include <string>
#include <string_view>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// Whether `$DATA` is to be written: it belongs to the deck, or any part of it holds something.
///
/// @param is_empty  tells whether a title or point group counts as blank
template <class Predicate>
bool data_is_due(const GamessInput& input, Predicate is_empty) {
    return input.has_data || !is_empty(std::string_view{input.title}) ||
           !is_empty(std::string_view{input.point_group}) || !input.atoms.empty() ||
           !input.data_lines.empty();
}

/// The size of `$DATA` as text, if no number is wider than its columns. Linear in the number of
/// lines.
[[nodiscard]] std::size_t data_block_size(const GamessInput& input) noexcept;

/// Appends `$DATA`, each of its lines ended by a newline. Atoms stand in fixed columns and wider
/// numbers overflow theirs; the other lines follow as they are.
void append_data_block(const GamessInput& input, std::string& text);

}  // namespace nurl::input::gamess::detail
