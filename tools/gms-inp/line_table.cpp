#include "line_table.hpp"

#include <algorithm>

namespace gms_inp {

LineTable::LineTable(std::string_view text) : text_{text} {
    for (std::size_t end = text.find_first_of("\r\n"); end != std::string_view::npos;
         end = text.find_first_of("\r\n", begins_.back())) {
        begins_.push_back(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    }
}

nurl::input::gamess::source::Position LineTable::at(std::size_t offset) const noexcept {
    const std::size_t place = std::min(offset, text_.size());
    const auto behind = std::ranges::upper_bound(begins_, place);
    return {.line = static_cast<std::size_t>(behind - begins_.begin()),
            .column = place - *std::prev(behind) + 1};
}

std::string_view LineTable::line(std::size_t number) const noexcept {
    const std::size_t begin = begins_[number - 1];
    const std::size_t end = number < begins_.size() ? begins_[number] : text_.size();
    std::string_view whole = text_.substr(begin, end - begin);
    if (whole.ends_with('\n')) whole.remove_suffix(1);
    if (whole.ends_with('\r')) whole.remove_suffix(1);
    return whole;
}

}  // namespace gms_inp
