#include "source/place.hpp"

#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

PlaceCounter::PlaceCounter(std::string_view text, const Group& group) noexcept
    : text_(text),
      seen_(group.header.begin),
      line_begin_(group.header.begin - (group.column - 1)),
      line_(group.line) {}

Position PlaceCounter::at(std::size_t offset) noexcept {
    for (; seen_ < offset; ++seen_) {
        if (!is_line_end(text_[seen_])) continue;
        if (text_[seen_] == '\r' && seen_ + 1 < text_.size() && text_[seen_ + 1] == '\n') continue;
        ++line_;
        line_begin_ = seen_ + 1;
    }
    return {line_, offset - line_begin_ + 1};
}

}  // namespace nurl::input::gamess::source
