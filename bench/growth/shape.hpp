/// @file
/// Texts of any size from a pattern.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace nurl::bench::growth {

/// A text as a function of n: `head`, n times `unit`, `tail`, n times `second_unit`, `end`. Each
/// `%` of a unit stands for its number in seven digits, so that a text of 4n units is four times as
/// long.
struct Shape {
    std::string_view head = {};
    std::string_view unit = {};
    std::string_view tail = {};
    std::string_view second_unit = {};
    std::string_view end = {};
};

/// The text of a shape.
[[nodiscard]] std::string text_of(const Shape& shape, std::size_t n);

}  // namespace nurl::bench::growth
