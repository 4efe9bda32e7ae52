/// @file
/// Walking the lines of a text without copying them.
#pragma once

#include <algorithm>
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
    explicit LineCursor(std::string_view text) noexcept : text_(text) { find_line_end(); }

    /// Whether all lines have been passed.
    [[nodiscard]] bool at_end() const noexcept { return begin_ == text_.size(); }

    /// Whether the line has a `$`. One without opens no group and ends none.
    [[nodiscard]] bool has_dollar() const noexcept { return dollar_.place() < end_; }

    /// The bytes from the current line to the next `$` or the end of the text.
    [[nodiscard]] std::size_t bytes_before_dollar() const noexcept {
        return dollar_.place() - begin_;
    }

    /// Where the line begins in the text.
    [[nodiscard]] std::size_t offset() const noexcept { return begin_; }

    /// The line the cursor stands on, without its terminator; not to be asked for at the end.
    [[nodiscard]] std::string_view line() const noexcept {
        return text_.substr(begin_, end_ - begin_);
    }

    /// Goes to the next line.
    void advance() noexcept {
        const bool is_pair = text_.substr(end_).starts_with("\r\n");
        begin_ = std::min(end_ + (is_pair ? 2 : 1), text_.size());
        find_line_end();
    }

private:
    /// The next place of a byte, remembered so that no text is searched to its end once per line
    /// for a byte that it does not have.
    class NextByte {
    public:
        constexpr explicit NextByte(char byte) noexcept : byte_(byte) {}

        /// The offset of the byte, or the size of the text when it has no more.
        [[nodiscard]] std::size_t place() const noexcept { return place_; }

        /// Goes on to the first one at or behind `from`; `text` is the same on every call.
        void go_to(std::string_view text, std::size_t from) noexcept {
            if (is_known_ && place_ >= from) return;
            place_ = std::min(text.find(byte_, from), text.size());
            is_known_ = true;
        }

    private:
        char byte_;
        bool is_known_ = false;
        std::size_t place_ = 0;
    };

    void find_line_end() noexcept {
        line_feed_.go_to(text_, begin_);
        carriage_return_.go_to(text_, begin_);
        dollar_.go_to(text_, begin_);
        end_ = std::min(line_feed_.place(), carriage_return_.place());
    }

    std::string_view text_;
    std::size_t begin_ = 0;  // of the current line
    std::size_t end_ = 0;    // of the current line, terminator excluded
    NextByte line_feed_{'\n'};
    NextByte carriage_return_{'\r'};
    NextByte dollar_{'$'};
};

}  // namespace nurl::input::gamess::detail
