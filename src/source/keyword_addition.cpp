#include "source/keyword_addition.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "nurl/core/text.hpp"
#include "nurl/input/gamess/source/wrap.hpp"
#include "source/keyword_items.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

namespace {

/// Whether the letters of a text are all small, and there is one.
bool is_lower_case(std::string_view text) noexcept {
    const auto is_small = [](char c) { return c >= 'a' && c <= 'z'; };
    const auto is_capital = [](char c) { return c >= 'A' && c <= 'Z'; };
    return std::ranges::any_of(text, is_small) && std::ranges::none_of(text, is_capital);
}

/// What a new keyword goes behind.
struct Ending {
    ItemKind kind = ItemKind::Separator;  ///< of the last item that is no separator, if any
    Span last;                            ///< that item
    Span name;                            ///< the name of the last keyword; empty without one
    std::size_t until = 0;                ///< the end of the last keyword
    std::size_t before_until = 0;         ///< the end of the keyword before that

    [[nodiscard]] bool has_item() const noexcept { return kind != ItemKind::Separator; }
};

Ending ending_of(const Deck& deck, const Group& group) {
    Ending ending;
    for_each_keyword_item(deck.text(), group, [&ending](const Item& item) {
        if (item.kind == ItemKind::Separator) return;
        if (item.span.end > ending.last.end) {
            ending.kind = item.kind;
            ending.last = item.span;
        }
        if (item.kind != ItemKind::Keyword) return;
        ending.name = {item.span.begin, item.span.begin + item.key.size()};
        ending.before_until = std::exchange(ending.until, item.span.end);
    });
    return ending;
}

/// The blanks at the beginning of the line that holds `offset`.
std::string_view indentation_at(const Deck& deck, std::size_t offset) noexcept {
    const std::size_t begin = line_begin(deck.text(), offset);
    std::size_t end = begin;
    while (end < offset && is_padding(deck.text()[end])) ++end;
    return deck.text({begin, end});
}

/// Whether a keyword that ends its group stands alone on its line, with the header and `$END` on
/// others.
bool stands_in_a_column(const Deck& deck, const Group& group, const Ending& ending) noexcept {
    const std::size_t begin = line_begin(deck.text(), ending.last.begin);
    return group.header.begin < begin && ending.before_until <= begin &&
           line_end(deck.text(), ending.last.end) < group.terminator.begin;
}

}  // namespace

Edit addition(const Deck& deck, const Group& group, std::string_view key, std::string_view value) {
    const Ending ending = ending_of(deck, group);
    const bool is_lower =
        is_lower_case(deck.text(ending.name.empty() ? group.header : ending.name));
    std::string text = is_lower ? core::text::to_lower_copy(key) : std::string{key};
    (text += '=') += value;

    std::size_t at = ending.has_item() ? ending.last.end : group.header.end;
    for (std::size_t i = at; i < group.body.end && is_separator(deck.text()[i]); ++i)
        if (deck.text()[i] == ',') at = i + 1;
    const std::size_t line = line_begin(deck.text(), at);
    const std::size_t end = std::min(line_end(deck.text(), at), group.terminator.end);
    const bool fits = end - line + 1 + text.size() <= line_width;
    const bool is_open_comment =
        ending.kind == ItemKind::Comment && is_line_end(deck.text()[ending.last.end]);
    const bool in_column =
        ending.kind == ItemKind::Keyword && stands_in_a_column(deck, group, ending);
    if (fits && !is_open_comment && !in_column) return {{at, at}, ' ' + text};

    std::string indentation{indentation_at(deck, at)};
    if (indentation.empty()) indentation = " ";
    // Blanks at the end of a line stay there.
    if (const std::size_t behind = skip_padding(deck.text(), at); is_line_end(deck.text()[behind]))
        at = behind;
    return {{at, at}, std::string{line_end_near(deck.text(), at)} + indentation + text};
}

}  // namespace nurl::input::gamess::source
