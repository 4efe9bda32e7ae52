// One walk from token to token. Whether a word is a keyword shows in what follows it on its line,
// so the blanks behind a word are looked at twice. Commas and comments behind a value are held back
// until the next word tells whether they stand inside the value or behind it.
#include "source/keyword_items.hpp"

#include <algorithm>
#include <cassert>
#include <utility>

#include "model/text_view.hpp"
#include "nurl/core/text.hpp"
#include "source/line_ends.hpp"
#include "source/place.hpp"

namespace nurl::input::gamess::source {

namespace {

class KeywordItems {
public:
    KeywordItems(std::string_view text, const Group& group)
        : text_(text),
          end_(group.body.end),
          at_(group.body.begin),
          glues_lines_(group.name == "QUANPO"),
          place_(text, group) {}

    std::vector<Item> run() {
        while (at_ < end_) take_token();
        release_held();
        return std::move(items_);
    }

private:
    void take_token() {
        const char c = text_[at_];
        if (detail::is_blank(c)) {
            ++at_;
        } else if (c == '!') {
            hold(ItemKind::Comment, comment_end());
        } else if (c == ',' || (c == '>' && glues_lines_ && ends_line(at_ + 1))) {
            hold(ItemKind::Separator, at_ + 1);
        } else {
            take_word();
        }
    }

    void take_word() {
        const Span word{at_, word_end()};
        const std::size_t equals = skip_padding(word.end);
        const bool is_key =
            detail::is_letter(text_[word.begin]) && equals < end_ && text_[equals] == '=';
        if (is_key)
            begin_keyword(word, equals);
        else if (in_value_ && !is_stray(text_[word.begin]))
            extend_value(word);
        else
            add_text(word);
    }

    /// A `$` or a `=` that no keyword precedes ends a value.
    static bool is_stray(char c) noexcept { return c == '$' || c == '='; }

    void begin_keyword(Span key, std::size_t equals) {
        release_held();
        std::string name = core::text::to_upper_copy(text_.substr(key.begin, key.size()));
        std::erase_if(name, is_padding);
        items_.push_back({ItemKind::Keyword,
                          {key.begin, equals + 1},
                          place_.at(key.begin),
                          std::move(name),
                          {equals + 1, equals + 1},
                          {}});
        keyword_ = items_.size() - 1;
        in_value_ = true;
        at_ = equals + 1;
    }

    void extend_value(Span word) {
        // Commas within a value are no items.
        for (Item& item : held_)
            if (text_[item.span.begin] != ',') items_.push_back(std::move(item));
        held_.clear();
        Item& keyword = items_[keyword_];
        if (keyword.words.empty()) keyword.value.begin = word.begin;
        keyword.words.push_back(word);
        keyword.value.end = word.end;
        keyword.span.end = word.end;
        at_ = word.end;
    }

    void add_text(Span word) {
        release_held();
        in_value_ = false;
        items_.push_back({ItemKind::Text, word, place_.at(word.begin), {}, {}, {}});
        at_ = word.end;
    }

    void hold(ItemKind kind, std::size_t end) {
        held_.push_back({kind, {at_, end}, place_.at(at_), {}, {}, {}});
        at_ = end;
    }

    void release_held() {
        std::ranges::move(held_, std::back_inserter(items_));
        held_.clear();
    }

    [[nodiscard]] std::size_t skip_padding(std::size_t from) const noexcept {
        while (from < end_ && is_padding(text_[from])) ++from;
        return from;
    }

    [[nodiscard]] bool ends_line(std::size_t from) const noexcept {
        const std::size_t next = skip_padding(from);
        return next == end_ || is_line_end(text_[next]);
    }

    /// A comment runs to the next `!` or to the end of its line.
    [[nodiscard]] std::size_t comment_end() const noexcept {
        std::size_t end = at_ + 1;
        while (end < end_ && text_[end] != '!' && !is_line_end(text_[end])) ++end;
        return end < end_ && text_[end] == '!' ? end + 1 : end;
    }

    [[nodiscard]] std::size_t word_end() noexcept {
        const char first = text_[at_];
        if (first == '=') return at_ + 1;
        if (first == '\'' || first == '"')
            if (const std::size_t end = quote_end(first); end > 0) return end;
        std::size_t end = at_ + 1;
        while (end < end_ && !ends_word(text_[end])) {
            const bool opens_index = text_[end] == '(' && detail::is_name_character(text_[end - 1]);
            end = opens_index ? index_end(end) : end + 1;
        }
        return end;
    }

    static bool ends_word(char c) noexcept {
        return detail::is_blank(c) || c == ',' || c == '=' || c == '!' || c == '$';
    }

    /// The end of an index that opens at `open`: numbers, blanks and commas up to a `)`. What is no
    /// index is a parenthesis and nothing more.
    [[nodiscard]] std::size_t index_end(std::size_t open) const noexcept {
        const auto belongs = [](char c) {
            return (c >= '0' && c <= '9') || c == ',' || c == '-' || c == '+' || is_padding(c);
        };
        std::size_t end = open + 1;
        while (end < end_ && belongs(text_[end])) ++end;
        return end < end_ && text_[end] == ')' ? end + 1 : open + 1;
    }

    /// The end of a quoted text; 0 when there is no further quote of the kind in front of the next
    /// `!`, `$` or line end. What was found is remembered, since a line of opening quotes must not
    /// be searched to its end for each.
    [[nodiscard]] std::size_t quote_end(char quote) noexcept {
        std::size_t& known = quote == '"' ? double_quote_ : single_quote_;
        if (known <= at_) {
            known = at_ + 1;
            while (known < end_ && text_[known] != quote && !ends_quotable(text_[known])) ++known;
        }
        return known < end_ && text_[known] == quote ? known + 1 : 0;
    }

    /// Comments and ends of groups are looked for before quotes.
    static bool ends_quotable(char c) noexcept { return c == '!' || c == '$' || is_line_end(c); }

    std::string_view text_;
    std::size_t end_;
    std::size_t at_;
    bool glues_lines_;
    PlaceCounter place_;
    std::vector<Item> items_;
    std::vector<Item> held_;        // behind the last word of a value
    std::size_t keyword_ = 0;       // the last keyword among items_
    bool in_value_ = false;         // the next word may belong to its value
    std::size_t single_quote_ = 0;  // where the search for the next ' stopped
    std::size_t double_quote_ = 0;  // likewise for "
};

}  // namespace

std::vector<Item> keyword_items(std::string_view text, const Group& group) {
    return KeywordItems(text, group).run();
}

}  // namespace nurl::input::gamess::source
