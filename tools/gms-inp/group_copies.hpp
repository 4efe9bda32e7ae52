/// @file
/// The copies of a group that a deck has, and their text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "keyword_path.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace gms_inp {

/// The copies meant by `path` among those that GAMESS sees, in the order of the text.
[[nodiscard]] std::vector<nurl::input::gamess::source::Group> find_copies(
    const nurl::input::gamess::source::Deck& deck, const GroupPath& path);

/// Where a group of a name stands that GAMESS does not see, and why; empty when there is none.
[[nodiscard]] std::string unseen_group(const nurl::input::gamess::source::Deck& deck,
                                       const std::string& name);

/// A sentence that a group, or the copy asked for, is not there: with the number of copies when
/// there are fewer, and with the place of a group of that name that GAMESS does not see.
[[nodiscard]] std::string absence_of(const nurl::input::gamess::source::Deck& deck,
                                     const GroupPath& path);

/// The same for a keyword or a whole group.
[[nodiscard]] std::string absence_of(const nurl::input::gamess::source::Deck& deck,
                                     const KeywordPath& path);

/// A group as it is written: from the blanks in front of its header to its `$END`, or to its last
/// text when it has none. Without the line end behind it. Valid until the deck changes.
[[nodiscard]] std::string_view written_text(const nurl::input::gamess::source::Deck& deck,
                                            const nurl::input::gamess::source::Group& group);

/// The line end behind a group: LF, CR LF or CR; LF when the text ends there.
[[nodiscard]] std::string_view line_end_behind(const nurl::input::gamess::source::Deck& deck,
                                               const nurl::input::gamess::source::Group& group);

}  // namespace gms_inp
