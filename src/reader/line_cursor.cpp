// The place of the next LF is remembered, so that a text of lone CRs is not searched to its end for
// an LF once per line.
#include "reader/line_cursor.hpp"

#include <algorithm>

namespace nurl::input::gamess::detail {

LineCursor::LineCursor(std::string_view text) noexcept : text_(text) {
    line_feed_ = std::min(text_.find('\n'), text_.size());
    find_line_end();
}

void LineCursor::advance() noexcept {
    const bool is_pair = end_ < line_feed_ && end_ + 1 == line_feed_;
    begin_ = std::min(end_ + (is_pair && line_feed_ < text_.size() ? 2 : 1), text_.size());
    if (line_feed_ < begin_) line_feed_ = std::min(text_.find('\n', begin_), text_.size());
    find_line_end();
}

void LineCursor::find_line_end() noexcept {
    const std::size_t carriage_return = text_.substr(begin_, line_feed_ - begin_).find('\r');
    end_ = carriage_return == std::string_view::npos ? line_feed_ : begin_ + carriage_return;
}

}  // namespace nurl::input::gamess::detail
