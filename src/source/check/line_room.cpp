#include "source/check/line_room.hpp"

#include "model/text_view.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source::checks {

Span line_around(const Deck& deck, std::size_t offset) noexcept {
    return {line_begin(deck.text(), offset), line_end(deck.text(), offset)};
}

bool fits(const Deck& deck, Span line, std::size_t more) noexcept {
    while (!line.empty() && is_padding(deck.text()[line.end - 1])) --line.end;
    return line.size() + more <= columns_read;
}

bool is_first_on_line(const Deck& deck, std::size_t offset) noexcept {
    const std::string_view text = deck.text();
    const std::size_t mark = text.size() - detail::without_byte_order_mark(text).size();
    while (offset > mark && is_padding(text[offset - 1])) --offset;
    return offset == mark || is_line_end(text[offset - 1]);
}

std::string_view line_end_before(const Deck& deck, std::size_t offset) noexcept {
    const std::string_view text = deck.text();
    if (offset == 0) return line_end_near(text, 0);
    const bool is_pair = offset > 1 && text[offset - 1] == '\n' && text[offset - 2] == '\r';
    return text.substr(offset - (is_pair ? 2 : 1), is_pair ? 2 : 1);
}

}  // namespace nurl::input::gamess::source::checks
