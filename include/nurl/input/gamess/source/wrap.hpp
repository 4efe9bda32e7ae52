/// @file
/// Folding long lines of keyword groups.
#pragma once

#include <cstddef>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// The width of a line that GAMESS reads, in columns.
inline constexpr std::size_t line_width = 80;

/// Finds the edits that fold the lines of the visible keyword groups to a number of columns.
///
/// A line is folded at the blanks between two items and at the blanks and behind the commas of a
/// value, as late as possible; what follows goes on in the next line, indented as the line it came
/// from, a `$END` in column 2. In `$QUANPO` a `>` is put at the end of a line where a value goes
/// on. A keyword and the first word of its value stay together unless they are too long for a line.
///
/// Comments stay behind what they stand behind, and so does text behind `$END`. A comment that
/// reaches beyond the columns by itself, a word that is too long and every other group stay as they
/// are. Lines that are short enough, blanks at their ends aside, are not touched, so the edits of a
/// folded text are none.
///
/// @param columns  at least 1
/// @return edits for `Deck::apply`, sorted by place; each lies within one line
///
/// Linear in the length of the text and of the edits. With more than 80 columns each edit can
/// repeat an indentation of as many blanks. Throws only on memory exhaustion.
///
///     wrap(Deck{" $SCF DIRSCF=.T. MAXIT=30 $END"}, 20);  // one edit, in front of MAXIT
[[nodiscard]] NURL_GMS_INP_EXPORT std::vector<Edit> wrap(const Deck& deck,
                                                         std::size_t columns = line_width);

}  // namespace nurl::input::gamess::source
