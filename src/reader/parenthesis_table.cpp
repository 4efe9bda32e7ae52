#include "reader/parenthesis_table.hpp"

#include <algorithm>

namespace nurl::input::gamess::detail {

std::size_t ParenthesisTable::end_of(std::string_view text, std::size_t open) {
    if (matches_.empty()) build(text, open);
    while (matches_[current_].open < open) ++current_;
    return matches_[current_].end;
}

void ParenthesisTable::build(std::string_view text, std::size_t from) {
    const auto count = std::ranges::count(text.substr(from), '(');
    matches_.reserve(static_cast<std::size_t>(count));
    std::vector<std::size_t> unclosed;
    unclosed.reserve(static_cast<std::size_t>(count));
    for (std::size_t at = from; at < text.size(); ++at) {
        if (text[at] == '(') {
            unclosed.push_back(matches_.size());
            matches_.push_back({at, at});
        } else if (text[at] == ')' && !unclosed.empty()) {
            matches_[unclosed.back()].end = at + 1;
            unclosed.pop_back();
        }
    }
}

}  // namespace nurl::input::gamess::detail
