#include "source/value_edit.hpp"

#include <algorithm>
#include <span>
#include <string>

#include "source/keyword_items.hpp"
#include "source/line_ends.hpp"
#include "source/value_text.hpp"

namespace nurl::input::gamess::source {

namespace {

/// A word of a value with what separates it from the one before.
struct Part {
    Gap gap;                ///< empty in front of the first word
    std::string_view word;  ///< as written
    Span span;              ///< where the word stands

    /// Whether the gaps are the same, or would be when the other one, of a value that comes and has
    /// no layout yet, were laid out as this one.
    [[nodiscard]] bool has_gap_of(const Part& other) const noexcept {
        if (gap.has_layout) return gap.has_comma == other.gap.has_comma;
        return gap.text == other.gap.text;
    }

    [[nodiscard]] bool is_same(const Part& other) const noexcept {
        return word == other.word && has_gap_of(other);
    }
};

std::vector<Part> parts_of(std::string_view text, const Item& keyword) {
    std::vector<Part> parts;
    parts.reserve(keyword.words.size());
    std::size_t end = keyword.value.begin;
    for (const Span word : keyword.words) {
        const Gap gap = read_gap(text, {end, word.begin});
        parts.push_back({gap, text.substr(word.begin, word.size()), word});
        end = word.end;
    }
    return parts;
}

/// The only keyword of a text that consists of one.
Item single_keyword(std::string_view text) {
    Group group;
    group.body = {0, text.size()};
    return keyword_items(text, group).front();
}

/// The comments within a span that ends with a word, in order.
std::vector<Span> comments_within(const Deck& deck, Span span) {
    const std::string_view text = deck.text(span);
    std::vector<Span> comments;
    for (std::size_t at = text.find('!'); at < text.size(); at = text.find('!', at)) {
        const std::size_t end = text.find_first_of("!\r\n", at + 1);
        const std::size_t behind = text[end] == '!' ? end + 1 : end;
        comments.push_back({span.begin + at, span.begin + behind});
        at = behind;
    }
    return comments;
}

/// How many parts two values have in common in front.
std::size_t common_front(std::span<const Part> a, std::span<const Part> b) noexcept {
    const std::size_t most = std::min(a.size(), b.size());
    std::size_t count = 0;
    while (count < most && a[count].is_same(b[count])) ++count;
    return count;
}

/// How many parts two values have in common at the end, apart from those in front.
std::size_t common_back(std::span<const Part> a, std::span<const Part> b,
                        std::size_t front) noexcept {
    const std::size_t most = std::min(a.size(), b.size()) - front;
    std::size_t count = 0;
    while (count < most && a[a.size() - 1 - count].is_same(b[b.size() - 1 - count])) ++count;
    return count;
}

/// Each word in the place of another.
std::vector<Edit> replace_one_by_one(std::span<const Part> going, std::span<const Part> coming) {
    std::vector<Edit> edits;
    for (std::size_t i = 0; i < going.size(); ++i)
        if (going[i].word != coming[i].word)
            edits.push_back({going[i].span, std::string{coming[i].word}});
    return edits;
}

/// The new words, and behind them the comments that stood between the old ones. A comment that ran
/// to the end of its line still does.
Edit replace_together(const Deck& deck, Span old, std::span<const Part> parts) {
    Edit edit{old, {}};
    for (const Part& part : parts) (edit.text += part.gap.text) += part.word;
    for (const Span comment : comments_within(deck, old)) {
        (edit.text += ' ') += deck.text(comment);
        const bool is_open = is_line_end(deck.text()[comment.end]);
        if (!is_open) continue;
        edit.text += deck.text({comment.end, next_line(deck.text(), comment.end)});
        edit.text += ' ';
    }
    return edit;
}

}  // namespace

std::vector<Edit> value_edits(const Deck& deck, const Item& keyword, std::string_view value) {
    const std::string assignment = "K=" + std::string{value};
    const std::vector<Part> before = parts_of(deck.text(), keyword);
    const std::vector<Part> after = parts_of(assignment, single_keyword(assignment));
    const std::size_t left = common_front(before, after);
    const std::size_t right = common_back(before, after, left);
    const std::span going{before.data() + left, before.size() - left - right};
    const std::span coming{after.data() + left, after.size() - left - right};

    const auto same_gap = [](const Part& a, const Part& b) { return a.has_gap_of(b); };
    if (std::ranges::equal(going, coming, same_gap)) return replace_one_by_one(going, coming);
    const std::size_t begin = left == 0 ? keyword.value.begin : before[left - 1].span.end;
    const std::size_t end = going.empty() ? begin : going.back().span.end;
    return {replace_together(deck, {begin, end}, coming)};
}

bool same_value(std::string_view a, std::string_view b) {
    const auto shape = [](std::string_view value) {
        const std::string assignment = "K=" + std::string{value};
        std::string words;
        for (const Part& part : parts_of(assignment, single_keyword(assignment))) {
            words += part.gap.has_comma ? ',' : '\n';
            words += part.word;
        }
        return words;
    };
    return shape(a) == shape(b);
}

}  // namespace nurl::input::gamess::source
