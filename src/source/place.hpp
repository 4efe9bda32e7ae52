/// @file
/// Counting lines and columns along the body of a group.
#pragma once

#include <cstddef>
#include <string_view>

#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// Gives the positions of ascending offsets. All calls together cost one pass over the text between
/// the header of the group and the last offset.
class PlaceCounter {
public:
    /// Starts at the header of `group`. The text must outlive the counter.
    PlaceCounter(std::string_view text, const Group& group) noexcept;

    /// Starts at the beginning of `text`, which must outlive the counter.
    explicit PlaceCounter(std::string_view text) noexcept : text_(text) {}

    /// The position of the byte at `offset`, which must not lie before that of an earlier call.
    [[nodiscard]] Position at(std::size_t offset) noexcept;

private:
    std::string_view text_;
    std::size_t seen_ = 0;
    std::size_t line_begin_ = 0;
    std::size_t line_ = 1;
};

}  // namespace nurl::input::gamess::source
