/// @file
/// Showing a place in a text to a person.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gms_inp {

/// What of a line is shown and marked.
struct Marked {
    std::string_view line;   ///< the line without its end
    std::size_t number = 1;  ///< its number
    std::size_t column = 1;  ///< first byte to mark, from 1; behind the line at most
    std::size_t length = 0;  ///< bytes to mark; the first place is marked in any case, what reaches
                             ///< beyond the line is not
};

/// Two lines: the source line behind its number, and a caret with tildes under what is marked.
///
/// Tabs are kept, so that both lines agree whatever a tab is worth; other control characters are
/// escaped. Of a long line only the surroundings of the place are shown, with `...` where it is
/// cut. Costs no more for a longer line.
///
///        3 |  SCFTPY=UHF
///          |  ^~~~~~
[[nodiscard]] std::string excerpt(const Marked& marked);

}  // namespace gms_inp
