/// @file
/// Tables for people.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace gms_inp {

/// Where the cells of a column stand.
enum class Align {
    Left,   ///< words
    Right,  ///< numbers
};

/// A column of a table.
struct Column {
    std::string title;          ///< its heading
    Align align = Align::Left;  ///< where its cells stand
};

/// A row of a table, a cell for each column.
using Row = std::vector<std::string>;

/// A table as text: a line of titles and a line for each row, columns two blanks apart, no blanks
/// at the end of a line. Control characters in cells are escaped.
[[nodiscard]] std::string format_table(std::span<const Column> columns, std::span<const Row> rows);

}  // namespace gms_inp
