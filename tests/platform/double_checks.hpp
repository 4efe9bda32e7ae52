/// @file
/// Checks of the reading of numbers.
#pragma once

#include <bit>
#include <cstdint>
#include <string_view>

#include "nurl/core/text.hpp"

namespace nurl::test {

/// Whether a text is read as this number, a zero with its sign.
inline bool reads_as(std::string_view text, double expected) {
    double value = 77.5;
    return core::text::try_parse_double(text, value) &&
           std::bit_cast<std::uint64_t>(value) == std::bit_cast<std::uint64_t>(expected);
}

/// Whether a text is rejected and the value left as it was.
inline bool is_rejected(std::string_view text) {
    constexpr double untouched = 77.5;
    double value = untouched;
    return !core::text::try_parse_double(text, value) && value == untouched;
}

}  // namespace nurl::test
