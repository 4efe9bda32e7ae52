/// @file
/// What two decks ask GAMESS to do differently.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "nurl/input/gamess/export.hpp"
#include "nurl/input/gamess/source/deck.hpp"

namespace nurl::input::gamess::source {

/// What differs.
enum class DifferenceKind : std::int32_t {
    Group = 0,    ///< a group that GAMESS sees in one deck and not in the other
    Keyword = 1,  ///< the value of a keyword that counts
    Line = 2,     ///< a line of a group without keywords; words of a keyword group that belong to
                  ///< no keyword; the `$END` of a group
};

/// One difference. An absent side has an empty text and no place.
struct Difference {
    DifferenceKind kind = DifferenceKind::Group;  ///< what differs
    std::string group;           ///< upper case, without the `$`; its first 80 bytes
    std::size_t occurrence = 1;  ///< which copy, for a group without keywords; 1 otherwise
    std::string key;     ///< the keyword with its index; of an array in several pieces the index of
                         ///< the first element that differs. For `$DATA` the part: "title", "point
                         ///< group", "axis", "atom", "basis", "variable" or "card". Empty otherwise
    std::string before;  ///< the value, line or header in the first deck. Of an array in several
                         ///< pieces the elements from the first that differs to the last
    std::string after;   ///< likewise in the second deck
    std::optional<Position> before_position;  ///< where it stands in the first deck
    std::optional<Position> after_position;   ///< where it stands in the second deck

    bool operator==(const Difference&) const = default;
};

/// Compares two decks as GAMESS reads them.
///
/// Only visible groups count. Keyword groups are compared over all their copies by the value of
/// each keyword that counts: lists element by element wherever their lines break and however they
/// are cut into pieces, numbers and logicals by what they stand for, words without regard to case,
/// quoted texts and those the schema calls a text as they are. A keyword with several indices is a
/// keyword of its own. What is missing between two commas counts.
///
/// Copies of a group without keywords are compared one by one: fixed columns byte by byte,
/// free-format groups card by card and word by word, `$DATA` with its title, point group, axis
/// cards, atoms, the basis set under each atom and the values of a Z-matrix. Numbers left out at
/// the end of an atom are zero. Blank cards of `$DATA` count where they decide what another card is
/// for, those of other groups always.
///
/// The order of groups and keywords, comments, and text between groups do not count. A group that
/// is empty in one deck and absent in the other is a difference, since the mere presence of some
/// groups starts something.
///
/// @return the differences, groups in the order of the first deck and then of the second; empty
///         when GAMESS would do the same calculation. A difference may be reported where GAMESS
///         would see none, never the other way round.
///
/// O(n log n) in the length of the texts. Lines are lined up from both ends of a group, so that one
/// more or one less is one difference; the list is not the shortest there is. Holds no more than
/// 700 bytes of memory for each byte of the texts and 64 KiB. Throws only on memory exhaustion.
///
///     compare(Deck{" $SCF MAXIT=30 $END"}, Deck{" $scf maxit=3.D1 $end ! same"});  // none
[[nodiscard]] NURL_GMS_INP_EXPORT std::vector<Difference> compare(const Deck& a, const Deck& b);

}  // namespace nurl::input::gamess::source
