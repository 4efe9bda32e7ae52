/// @file
/// Families of hostile input: one text for each n, and an operation on it.
#pragma once

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

#include "growth/shape.hpp"

namespace nurl::bench::growth {

/// What an operation is given.
struct Input {
    std::string text;
    std::size_t n = 0;
};

/// The n of a family, in units. The larger of its two inputs has four times as many, which is the
/// size that the constants below tell.
struct Sizes {
    std::size_t quick = 0;  ///< enough to show an instruction for each pair of units
    std::size_t full = 0;   ///< as much as somebody might mean to do harm with
};

/// A line of 50 megabytes in full, a byte a unit.
inline constexpr Sizes bytes{16'000, 12'500'000};
/// The same where vector instructions take many bytes at once.
inline constexpr Sizes swift_bytes{300'000, 12'500'000};
/// A million words, lines or signs in full.
inline constexpr Sizes words{1'500, 250'000};
/// The same where next to nothing is done with each.
inline constexpr Sizes swift_words{60'000, 250'000};
/// A hundred thousand groups, keywords or atoms in full.
inline constexpr Sizes things{600, 25'000};
/// The same where much is done with each.
inline constexpr Sizes costly_things{1'200, 25'000};
/// The same where next to nothing is done with each.
inline constexpr Sizes swift_things{10'000, 25'000};

/// One row of the tables.
struct Family {
    std::string_view name;  ///< what is done to what; n stands for the size
    Shape shape;
    void (*operation)(const Input& input) = nullptr;  ///< counts the part that matters
    Sizes sizes;
};

/// Ends the program when an operation did not do what it is measured for.
inline void require(bool done) {
    if (!done) throw std::runtime_error("the operation did not do what it is measured for");
}

/// The families of one room of the library.
using Table = std::span<const Family> (*)() noexcept;

/// The families of each room.
[[nodiscard]] std::span<const Family> reader_families() noexcept;
[[nodiscard]] std::span<const Family> reader_data_families() noexcept;
[[nodiscard]] std::span<const Family> scanner_families() noexcept;
[[nodiscard]] std::span<const Family> schema_families() noexcept;
[[nodiscard]] std::span<const Family> editor_families() noexcept;
[[nodiscard]] std::span<const Family> group_families() noexcept;
[[nodiscard]] std::span<const Family> file_families() noexcept;
[[nodiscard]] std::span<const Family> validation_families() noexcept;
[[nodiscard]] std::span<const Family> typed_families() noexcept;
[[nodiscard]] std::span<const Family> builder_families() noexcept;
[[nodiscard]] std::span<const Family> source_index_families() noexcept;
[[nodiscard]] std::span<const Family> source_item_families() noexcept;
[[nodiscard]] std::span<const Family> source_edit_families() noexcept;
[[nodiscard]] std::span<const Family> check_families() noexcept;
[[nodiscard]] std::span<const Family> check_molecule_families() noexcept;
[[nodiscard]] std::span<const Family> compare_families() noexcept;
[[nodiscard]] std::span<const Family> wrap_families() noexcept;

/// All of these.
[[nodiscard]] std::span<const Table> tables() noexcept;

}  // namespace nurl::bench::growth
