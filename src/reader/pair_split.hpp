/// @file
/// Cutting keyword text into pairs and the text between them.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/model.hpp"

namespace nurl::input::gamess::detail {

/// A pair cut out of a text, both views pointing into it.
struct PairText {
    std::string_view key;    ///< as written, index suffix included
    std::string_view value;  ///< trimmed
};

/// Appends the pairs in `text` to `pairs`.
///
/// @param leftover  replaced by the text before, between and behind the pairs, joined without
///                  separators; blank ones at its front are left out; its memory is reused
void split_pairs(std::string_view text, std::vector<PairText>& pairs, std::string& leftover);

/// The pairs as entries, keys in upper case.
[[nodiscard]] std::vector<KeyValue> to_entries(std::span<const PairText> pairs);

}  // namespace nurl::input::gamess::detail
