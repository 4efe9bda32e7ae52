/// @file
/// Walking the lines of a text without copying them.
#pragma once

#include <cstddef>
#include <string_view>

namespace nurl::input::gamess::detail {

/// Gives the lines of a text one after another, cut as `nurl::core::text::split_lines` cuts them: a
/// line ends at LF, CR LF or a lone CR, and a terminator at the very end opens no further line.
///
/// The text must outlive the cursor. A whole walk is linear in the length of the text.
class LineCursor {
public:
    /// Stands on the first line of `text`.
    explicit LineCursor(std::string_view text) noexcept;

    /// Whether all lines have been passed.
    [[nodiscard]] bool at_end() const noexcept { return begin_ == text_.size(); }

    /// The line the cursor stands on, without its terminator; not to be asked for at the end.
    [[nodiscard]] std::string_view line() const noexcept {
        return text_.substr(begin_, end_ - begin_);
    }

    /// Goes to the next line.
    void advance() noexcept;

private:
    void find_line_end() noexcept;

    std::string_view text_;
    std::size_t begin_ = 0;      // of the current line
    std::size_t end_ = 0;        // of the current line, terminator excluded
    std::size_t line_feed_ = 0;  // the first LF at or behind begin_, or the size of the text
};

}  // namespace nurl::input::gamess::detail
