/// @file
/// Walking the text of a deck line by line, with the reader's eyes.
///
/// The document model does not hold line numbers, nor the text that reading drops. This room finds
/// both in the text again: which group a line belongs to, and which part of it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace gms_inp {

/// Where a line of a deck stands.
enum class LineRole {
    Outside,  ///< between groups
    Header,   ///< opens a group
    Body,     ///< inside a group, the line that closes it included
};

/// One line of a deck. The views point into the text walked over, `group` into the walk.
struct DeckLine {
    LineRole role = LineRole::Outside;  ///< where the line stands
    std::size_t number = 0;             ///< counted from 1
    std::string_view group;       ///< name of its group, upper case, no `$`; empty outside groups;
                                  ///< valid until the next header
    std::string_view text;        ///< what belongs to the group: behind the name of a header, in
                                  ///< front of `$END`; the whole line outside groups
    std::string_view behind_end;  ///< what follows `$END`
    bool closes = false;          ///< `$END` stands on the line
};

/// A walk over the lines of a deck.
///
///     for (DeckWalk walk{text}; const auto line = walk.next();) inspect(*line);
class DeckWalk {
public:
    /// Starts at the first line of `text`, which must outlive the walk.
    explicit DeckWalk(std::string_view text) noexcept;

    /// Takes the next line. @return nothing behind the last one
    [[nodiscard]] std::optional<DeckLine> next();

private:
    [[nodiscard]] std::optional<std::string_view> take_line() noexcept;

    std::string_view rest_;
    std::size_t number_ = 0;
    std::string group_;
    bool inside_ = false;
};

}  // namespace gms_inp
