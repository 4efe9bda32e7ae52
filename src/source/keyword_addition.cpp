#include "source/keyword_addition.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "nurl/core/text.hpp"
#include "nurl/input/gamess/source/wrap.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

namespace {

/// Whether the letters of a text are all small, and there is one.
bool is_lower_case(std::string_view text) noexcept {
    const auto is_small = [](char c) { return c >= 'a' && c <= 'z'; };
    const auto is_capital = [](char c) { return c >= 'A' && c <= 'Z'; };
    return std::ranges::any_of(text, is_small) && std::ranges::none_of(text, is_capital);
}

/// The name of a keyword as it stands in the text.
std::string_view name_text(const Deck& deck, const Item& keyword) noexcept {
    return deck.text({keyword.span.begin, keyword.span.begin + keyword.key.size()});
}

/// The last item of a group that is no separator; null when there is none.
const Item* last_of(const std::vector<Item>& items) noexcept {
    const Item* last = nullptr;
    for (const Item& item : items)
        if (item.kind != ItemKind::Separator && (last == nullptr || item.span.end > last->span.end))
            last = &item;
    return last;
}

/// The blanks at the beginning of the line that holds `offset`.
std::string_view indentation_at(const Deck& deck, std::size_t offset) noexcept {
    const std::size_t begin = line_begin(deck.text(), offset);
    std::size_t end = begin;
    while (end < offset && is_padding(deck.text()[end])) ++end;
    return deck.text({begin, end});
}

/// Whether the last keyword stands alone on its line, with the header and `$END` on others.
bool stands_in_a_column(const Deck& deck, const Group& group, const std::vector<Item>& items,
                        const Item& last) noexcept {
    const std::size_t begin = line_begin(deck.text(), last.span.begin);
    if (group.header.begin >= begin) return false;
    if (line_end(deck.text(), last.span.end) >= group.terminator.begin) return false;
    return std::ranges::none_of(items, [&](const Item& item) {
        return item.kind == ItemKind::Keyword && item.span.begin != last.span.begin &&
               item.span.end > begin;
    });
}

}  // namespace

Edit addition(const Deck& deck, const Group& group, std::string_view key, std::string_view value) {
    const std::vector<Item> items = deck.items(group);
    const Item* const last = last_of(items);
    const auto keyword =
        std::ranges::find(items.rbegin(), items.rend(), ItemKind::Keyword, &Item::kind);
    const bool is_lower = is_lower_case(keyword == items.rend() ? deck.text(group.header)
                                                                : name_text(deck, *keyword));
    std::string text = is_lower ? core::text::to_lower_copy(key) : std::string{key};
    (text += '=') += value;

    std::size_t at = last == nullptr ? group.header.end : last->span.end;
    for (std::size_t i = at; i < group.body.end && is_separator(deck.text()[i]); ++i)
        if (deck.text()[i] == ',') at = i + 1;
    const std::size_t line = line_begin(deck.text(), at);
    const std::size_t end = std::min(line_end(deck.text(), at), group.terminator.end);
    const bool fits = end - line + 1 + text.size() <= line_width;
    const bool is_open_comment = last != nullptr && last->kind == ItemKind::Comment &&
                                 is_line_end(deck.text()[last->span.end]);
    const bool in_column = last != nullptr && last->kind == ItemKind::Keyword &&
                           stands_in_a_column(deck, group, items, *last);
    if (fits && !is_open_comment && !in_column) return {{at, at}, ' ' + text};

    std::string indentation{indentation_at(deck, at)};
    if (indentation.empty()) indentation = " ";
    // Blanks at the end of a line stay there.
    if (const std::size_t behind = skip_padding(deck.text(), at); is_line_end(deck.text()[behind]))
        at = behind;
    return {{at, at}, std::string{line_end_near(deck.text(), at)} + indentation + text};
}

}  // namespace nurl::input::gamess::source
