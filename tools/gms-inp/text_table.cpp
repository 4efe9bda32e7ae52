#include "text_table.hpp"

#include <algorithm>

#include "terminal.hpp"

namespace gms_inp {

namespace {

void append_row(std::span<const Column> columns, std::span<const std::size_t> widths,
                const Row& row, std::string& out) {
    std::string line;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::string padding(widths[i] - row[i].size(), ' ');
        if (i > 0) line += "  ";
        line += columns[i].align == Align::Right ? padding + row[i] : row[i] + padding;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out += line + '\n';
}

}  // namespace

std::string format_table(std::span<const Column> columns, std::span<const Row> rows) {
    std::vector<Row> lines(1);
    for (const Column& column : columns) lines[0].push_back(column.title);
    for (const Row& row : rows) {
        Row& line = lines.emplace_back();
        for (const std::string& cell : row) line.push_back(escape_controls(cell, Keep::Nothing));
    }
    std::vector<std::size_t> widths(columns.size(), 0);
    for (const Row& line : lines) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], line[i].size());
        }
    }
    std::string out;
    for (const Row& line : lines) append_row(columns, widths, line, out);
    return out;
}

}  // namespace gms_inp
