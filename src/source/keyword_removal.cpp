#include "source/keyword_removal.hpp"

#include <optional>
#include <string>

#include "model/text_view.hpp"
#include "nurl/input/gamess/source/wrap.hpp"
#include "source/keyword_items.hpp"
#include "source/keyword_lookup.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

namespace {

/// A keyword with what stands around it.
struct Use {
    Span span;
    bool is_behind_comment = false;  ///< the item before it is a comment
    bool has_inner_items = false;    ///< there are items between the words of its value
    std::vector<Span> comments;      ///< those that are comments
};

/// What of a span is left without the comments in it, all in front of its last word. The line end
/// behind an open comment stays.
void erase_around_comments(const Deck& deck, const Use& use, std::vector<Edit>& edits) {
    std::size_t begin = use.span.begin;
    for (const Span comment : use.comments) {
        if (begin < comment.begin) edits.push_back({{begin, comment.begin}, {}});
        begin = comment.end;
        if (is_line_end(deck.text()[begin])) begin = next_line(deck.text(), begin);
    }
    edits.push_back({{begin, use.span.end}, {}});
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
std::optional<std::size_t> end_can_move_to(const Deck& deck, const Group& group, const Use& use,
                                           std::size_t begin) {
    const std::string& text = deck.text();
    if (use.is_behind_comment) return std::nullopt;
    std::size_t before = begin;
    while (before > group.header.end && detail::is_blank(text[before - 1])) --before;
    const std::size_t end = line_end(text, before);
    if (next_line(text, end) != begin) return std::nullopt;
    const std::size_t width =
        before - line_begin(text, before) + group.terminator.end - use.span.end;
    if (width > line_width) return std::nullopt;
    return end;
}

/// The removal of a keyword without comments that begins its line and does not end it.
Edit removal_at_line_begin(const Deck& deck, const Group& group, const Use& use, Span with_blanks) {
    if (with_blanks.end == group.terminator.begin) {
        const auto end = end_can_move_to(deck, group, use, with_blanks.begin);
        if (end) return {{*end, use.span.end}, {}};
    }
    return {{use.span.begin, with_blanks.end}, {}};
}

/// The removal of a keyword without anything between the words of its value.
Edit removal(const Deck& deck, const Group& group, const Use& use) {
    const Span span = use.span;
    const std::string& text = deck.text();
    const Span with_blanks{gap_begin(deck, group, span), gap_end(deck, group, span.end)};
    const auto [begin, end] = with_blanks;
    const bool is_behind_name = begin == group.body.begin;
    const bool is_first = is_line_end(text[begin - 1]);
    const bool is_last = end < group.body.end && is_line_end(text[end]);
    if (is_first && is_last) return {{begin, next_line(text, end)}, {}};
    if (is_first) return removal_at_line_begin(deck, group, use, with_blanks);
    // A blank behind the name of the group has to stay.
    if (is_behind_name && !detail::is_blank(text[span.end])) return {{span.begin, end}, {}};
    return {{begin, span.end}, {}};
}

}  // namespace

void add_removals(const Deck& deck, const Group& group, std::string_view key,
                  std::vector<Edit>& edits) {
    std::optional<Use> use;
    bool is_behind_comment = false;
    const auto remove = [&] {
        if (use && use->has_inner_items)
            erase_around_comments(deck, *use, edits);
        else if (use)
            edits.push_back(removal(deck, group, *use));
        use.reset();
    };
    for_each_keyword_item(deck.text(), group, [&](const Item& item) {
        const bool is_comment = item.kind == ItemKind::Comment;
        if (use && item.span.begin < use->span.end) {
            use->has_inner_items = true;
            if (is_comment) use->comments.push_back(item.span);
        } else {
            remove();
            if (is_key(item, key)) use = Use{item.span, is_behind_comment, false, {}};
        }
        is_behind_comment = is_comment;
    });
    remove();
}

}  // namespace nurl::input::gamess::source
