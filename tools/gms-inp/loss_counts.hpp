/// @file
/// The kinds of text that the canonical layout leaves out or moves, and how often a deck has them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace gms_inp {

/// A kind of loss. Each has a sentence, in singular and plural.
enum class Loss : std::size_t {
    OutsideText,      ///< lines between groups
    BehindEnd,        ///< text behind `$END`
    MergedGroup,      ///< repeated structured groups and `$DATA`
    GroupBehindData,  ///< groups that follow `$DATA`
    StructuredText,   ///< free text and comments of structured groups
    EmptyStructured,  ///< structured groups without a keyword
    EarlierValue,     ///< keywords of structured groups that are given again
    ChangedUnits,     ///< units that are neither `ANGS` nor `BOHR`
    FreedKeyword,     ///< keywords in comments
    JoinedComment,    ///< comments behind values
    JoinedLines,      ///< keyword groups on several lines
    MovedText,        ///< free text of keyword groups in front of further keywords
    RawHeaderText,    ///< text on the header line of raw groups
    RawIndent,        ///< leading blanks of raw groups
    RawBlankLine,     ///< blank lines of raw groups
    DataHeaderText,   ///< text on the header line of `$DATA`
    DataBlankLine,    ///< blank lines of `$DATA`
    DataMovedLine,    ///< lines of `$DATA` that are no atoms, in front of atoms
    AtomIndex,        ///< numbers in front of atoms
    AtomTail,         ///< text behind the coordinates of atoms
    RoundedNumber,    ///< numbers of atoms with many digits
    LongLine,         ///< lines that become too long
};

/// Number of kinds.
inline constexpr std::size_t loss_count = static_cast<std::size_t>(Loss::LongLine) + 1;

/// How often each kind of loss occurs.
class LossCounts {
public:
    /// Counts `count` more losses of a kind.
    void add(Loss loss, std::size_t count = 1) noexcept;

    /// One sentence, without a full stop, for each kind that occurs, in the order of the kinds.
    ///
    ///     "2 lines of text outside the groups are left out"
    [[nodiscard]] std::vector<std::string> sentences() const;

private:
    std::array<std::size_t, loss_count> counts_{};
};

}  // namespace gms_inp
