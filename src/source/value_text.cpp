#include "source/value_text.hpp"

#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

Gap read_gap(std::string_view text, Span gap) noexcept {
    Gap seen{text.substr(gap.begin, gap.size())};
    bool in_comment = false;
    for (const char c : seen.text) {
        if (is_line_end(c)) in_comment = false;
        if (c == '!') in_comment = !in_comment;
        if (c == ',' && !in_comment) seen.has_comma = true;
        if (is_line_end(c) || c == '!') seen.has_layout = true;
    }
    if (seen.has_layout) seen.text = seen.has_comma ? "," : " ";
    return seen;
}

std::string value_text(std::string_view text, const Item& keyword) {
    std::string value;
    std::size_t end = keyword.value.begin;
    for (const Span word : keyword.words) {
        value += read_gap(text, {end, word.begin}).text;
        value += text.substr(word.begin, word.size());
        end = word.end;
    }
    return value;
}

}  // namespace nurl::input::gamess::source
