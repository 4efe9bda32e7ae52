#include "source/keyword_removal.hpp"

#include <optional>
#include <string>

#include "model/text_view.hpp"
#include "nurl/input/gamess/source/wrap.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

namespace {

/// What of a span is left without the comments in it. The line end behind an open comment stays.
std::vector<Edit> erase_around_comments(const Deck& deck, Span span, const std::vector<Item>& items,
                                        std::size_t index) {
    std::vector<Edit> edits;
    std::size_t begin = span.begin;
    for (std::size_t i = index + 1; i < items.size() && items[i].span.begin < span.end; ++i) {
        if (items[i].kind != ItemKind::Comment) continue;
        if (begin < items[i].span.begin) edits.push_back({{begin, items[i].span.begin}, {}});
        begin = items[i].span.end;
        if (begin < span.end && is_line_end(deck.text()[begin]))
            begin = next_line(deck.text(), begin);
    }
    if (begin < span.end) edits.push_back({{begin, span.end}, {}});
    return edits;
}

/// The first byte of the blanks in front of an item on its line; of two commas around the item, the
/// one in front counts as blank.
std::size_t gap_begin(const Deck& deck, const Group& group, Span item) noexcept {
    const std::string& text = deck.text();
    const auto skip_back = [&](std::size_t at) {
        while (at > group.body.begin && is_padding(text[at - 1])) --at;
        return at;
    };
    const std::size_t begin = skip_back(item.begin);
    const std::size_t behind = skip_padding(text, item.end);
    const bool has_two = begin > group.body.begin && text[begin - 1] == ',' &&
                         behind < group.body.end && text[behind] == ',';
    return has_two ? skip_back(begin - 1) : begin;
}

/// The end of the blanks and commas behind `at` on its line.
std::size_t gap_end(const Deck& deck, const Group& group, std::size_t at) noexcept {
    while (at < group.body.end && is_separator(deck.text()[at])) ++at;
    return at;
}

/// The end of the line in front of an item that only `$END` follows on its own line, when `$END`
/// can move up there: the line belongs to the group, ends with no comment, and has room.
std::optional<std::size_t> end_can_move_to(const Deck& deck, const Group& group,
                                           const Item* previous, Span item, std::size_t begin) {
    const std::string& text = deck.text();
    if (previous != nullptr && previous->kind == ItemKind::Comment) return std::nullopt;
    std::size_t before = begin;
    while (before > group.header.end && detail::is_blank(text[before - 1])) --before;
    const std::size_t end = line_end(text, before);
    if (next_line(text, end) != begin) return std::nullopt;
    const std::size_t width = before - line_begin(text, before) + group.terminator.end - item.end;
    if (width > line_width) return std::nullopt;
    return end;
}

/// `removal` of an item without comments that begins its line and does not end it.
Edit removal_at_line_begin(const Deck& deck, const Group& group, const Item* previous, Span item,
                           Span with_blanks) {
    if (with_blanks.end == group.terminator.begin) {
        const auto end = end_can_move_to(deck, group, previous, item, with_blanks.begin);
        if (end) return {{*end, item.end}, {}};
    }
    return {{item.begin, with_blanks.end}, {}};
}

}  // namespace

std::vector<Edit> removal(const Deck& deck, const Group& group, const std::vector<Item>& items,
                          std::size_t index) {
    const Span span = items[index].span;
    const std::string& text = deck.text();
    const bool has_comments = index + 1 < items.size() && items[index + 1].span.begin < span.end;
    if (has_comments) return erase_around_comments(deck, span, items, index);

    const Span with_blanks{gap_begin(deck, group, span), gap_end(deck, group, span.end)};
    const auto [begin, end] = with_blanks;
    const bool is_behind_name = begin == group.body.begin;
    const bool is_first = !is_behind_name && is_line_end(text[begin - 1]);
    const bool is_last = end < group.body.end && is_line_end(text[end]);
    if (is_first && is_last) return {{{begin, next_line(text, end)}, {}}};
    if (is_first) {
        const Item* const previous = index == 0 ? nullptr : &items[index - 1];
        return {removal_at_line_begin(deck, group, previous, span, with_blanks)};
    }
    // A blank behind the name of the group has to stay.
    if (is_behind_name && !detail::is_blank(text[span.end])) return {{{span.begin, end}, {}}};
    return {{{begin, span.end}, {}}};
}

}  // namespace nurl::input::gamess::source
