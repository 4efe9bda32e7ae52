/// @file
/// Cutting a keyword out of the free text of a generic group.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nurl::input::gamess::detail {

/// Raw lines after a cut.
struct CutRawLines {
    std::vector<std::string> lines;  ///< one for each line given
    bool found = false;              ///< whether any line held the keyword
};

/// Cuts the pairs of a keyword out of every raw line.
///
/// A line with any pair in it has its runs of white space replaced by single blanks; every line is
/// trimmed. Linear in the length of the lines.
[[nodiscard]] CutRawLines cut_keyword(const std::vector<std::string>& lines, std::string_view key);

}  // namespace nurl::input::gamess::detail
