/// @file
/// Lines of a text by number and by place.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/source/deck.hpp"

namespace gms_inp {

/// Where each line of a text begins. Lines end at LF, CR LF or a lone CR.
class LineTable {
public:
    /// Reads the text once. It must outlive the table.
    explicit LineTable(std::string_view text);

    /// Line and column of the byte at `offset`; of the end for an offset beyond it. Logarithmic.
    [[nodiscard]] nurl::input::gamess::source::Position at(std::size_t offset) const noexcept;

    /// A line without its end, however long it is at the same cost.
    ///
    /// @param number  from 1 to the number of lines
    [[nodiscard]] std::string_view line(std::size_t number) const noexcept;

private:
    std::string_view text_;
    std::vector<std::size_t> begins_{0};
};

}  // namespace gms_inp
