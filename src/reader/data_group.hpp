/// @file
/// Reading `$DATA`.
#pragma once

#include "nurl/input/gamess/model.hpp"
#include "reader/deck_line.hpp"
#include "reader/line_cursor.hpp"

namespace nurl::input::gamess::detail {

/// Reads `$DATA` into title, point group, atoms and other lines.
///
/// A second `$DATA` goes on filling the same document, its title and point group only while they
/// are empty.
///
/// @param header  the header of the group, on which `lines` stands
/// @param lines   moved behind the group, or onto the header that ended it
/// @param result  filled; takes a warning when the text ends without `$END`
void read_data_group(const HeaderLine& header, LineCursor& lines, ParseResult& result);

}  // namespace nurl::input::gamess::detail
