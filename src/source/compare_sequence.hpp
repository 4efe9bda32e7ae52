/// @file
/// Lining two sequences up so that one more or one less is one difference.
#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

namespace nurl::input::gamess::source {

/// Places in two sequences that differ; nothing where only the other sequence has something.
struct UnequalRow {
    std::optional<std::size_t> a;
    std::optional<std::size_t> b;
};

/// The number of places that are the same from the beginning.
template <class Same>
[[nodiscard]] std::size_t common_front(std::size_t size_a, std::size_t size_b, Same same) {
    std::size_t count = 0;
    while (count < size_a && count < size_b && same(count, count)) ++count;
    return count;
}

/// Lines two sequences up from both ends, and between them looks one place ahead.
///
/// @param same  `same(i, j)` says whether place `i` of the first is the same as `j` of the second
/// @return the places that differ, ascending; empty exactly when the sequences are the same
///
/// Linear in the number of places. It does not look for the fewest differences.
template <class Same>
[[nodiscard]] std::vector<UnequalRow> unequal_rows(std::size_t size_a, std::size_t size_b,
                                                   Same same) {
    std::size_t i = common_front(size_a, size_b, same);
    std::size_t j = i;
    while (size_a > i && size_b > j && same(size_a - 1, size_b - 1)) --size_a, --size_b;
    std::vector<UnequalRow> rows;
    const auto is_same = [&](std::size_t a, std::size_t b) {
        return a < size_a && b < size_b && same(a, b);
    };
    while (i < size_a || j < size_b) {
        const bool is_change = is_same(i + 1, j + 1);
        if (is_same(i, j))
            ++i, ++j;
        else if (i == size_a || (!is_change && is_same(i, j + 1)))
            rows.push_back({std::nullopt, j++});
        else if (j == size_b || (!is_change && is_same(i + 1, j)))
            rows.push_back({i++, std::nullopt});
        else
            rows.push_back({i++, j++});
    }
    return rows;
}

}  // namespace nurl::input::gamess::source
