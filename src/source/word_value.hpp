/// @file
/// What a word of a deck stands for, as GAMESS reads it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace nurl::input::gamess::source {

/// Reads `.TRUE.`, `.FALSE.`, `.T.` and `.F.` in any case; nothing for every other word. The
/// periods are required.
[[nodiscard]] std::optional<bool> logical_of(std::string_view word) noexcept;

/// Reads an integer with an optional sign; nothing for every other word and for one that does not
/// fit in 64 bits.
[[nodiscard]] std::optional<std::int64_t> integer_of(std::string_view word) noexcept;

/// Reads a number with or without decimal point, exponent by E or D; nothing for every other word
/// and for a number that is too large. One that is too small is zero.
[[nodiscard]] std::optional<double> real_of(std::string_view word);

/// Whether two words stand for the same: the same number, the same logical, or the same letters
/// without regard to case. Integers of any length are compared exactly, other numbers as GAMESS
/// holds them. Quoted words are compared as they are.
///
///     same_word("1D-3", ".001");  // true
///     same_word("30", "3.E1");    // true
[[nodiscard]] bool same_word(std::string_view a, std::string_view b);

}  // namespace nurl::input::gamess::source
