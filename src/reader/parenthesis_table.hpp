/// @file
/// Matching of nested parentheses.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace nurl::input::gamess::detail {

/// Answers where a `(` is closed, for places that are asked about in ascending order.
///
/// The partners are found once, in one pass from the first place asked about to the end of the
/// text, so that a scan over deeply nested or unbalanced parentheses stays linear. Memory is 24
/// bytes for each `(` behind that place.
class ParenthesisTable {
public:
    /// The offset just past the `)` that closes the `(` at `open`, or `open` when none does.
    ///
    /// @param text  the same text on every call
    /// @param open  offset of a `(`, not before that of an earlier call
    [[nodiscard]] std::size_t end_of(std::string_view text, std::size_t open);

private:
    struct Match {
        std::size_t open;
        std::size_t end;
    };

    void build(std::string_view text, std::size_t from);

    std::vector<Match> matches_;  // in order of `open`
    std::size_t current_ = 0;     // all matches before it have been passed
};

}  // namespace nurl::input::gamess::detail
