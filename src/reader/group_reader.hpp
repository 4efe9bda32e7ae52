/// @file
/// Reading one group other than `$DATA` in generic form.
#pragma once

#include <string>
#include <vector>

#include "nurl/input/gamess/model.hpp"
#include "reader/deck_line.hpp"
#include "reader/line_cursor.hpp"

namespace nurl::input::gamess::detail {

/// Reads a group up to its `$END`, the next header or the end of the text.
///
/// Keyword text becomes entries; what is left of a line, or every line of a raw group, becomes a
/// raw line. The schema says which of the two a group is.
///
/// @param header    the header of the group, on which `lines` stands
/// @param lines     moved behind the group, or onto the header that ended it
/// @param warnings  takes a sentence for a missing `$END` and for free text in a structured group
NamedSection read_group(const HeaderLine& header, LineCursor& lines,
                        std::vector<std::string>& warnings);

}  // namespace nurl::input::gamess::detail
