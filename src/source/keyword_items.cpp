// One walk from token to token. Whether a word is a keyword shows in what follows it on its line,
// so the blanks behind a word are looked at twice. A keyword is held back until its value ends, and
// commas and comments behind a value until the next word tells whether they stand inside it.
#include "source/keyword_items.hpp"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
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

    void run(const ItemVisitor& visit) {
        visit_ = &visit;
        while (at_ < end_) take_token();
        release();
    }

private:
    void take_token() {
        const char c = text_[at_];
        if (detail::is_blank(c)) {
            ++at_;
        } else if (c == '!') {
            take_between(comment_end());
        } else if (c == ',' || (c == '>' && glues_lines_ && ends_line(at_ + 1))) {
            take_between(at_ + 1);
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
        else if (keyword_ && !is_stray(text_[word.begin]))
            extend_value(word);
        else
            add_text(word);
    }

    /// A `$` or a `=` that no keyword precedes ends a value.
    static bool is_stray(char c) noexcept { return c == '$' || c == '='; }

    void begin_keyword(Span key, std::size_t equals) {
        release();
        std::string name = core::text::to_upper_copy(text_.substr(key.begin, key.size()));
        std::erase_if(name, is_padding);
        keyword_ = Item{ItemKind::Keyword, {key.begin, equals + 1},  place_.at(key.begin),
                        std::move(name),   {equals + 1, equals + 1}, {}};
        at_ = equals + 1;
    }

    void extend_value(Span word) {
        // Commas within a value are no items.
        std::ranges::copy_if(behind_, std::back_inserter(inside_),
                             [this](Span span) { return text_[span.begin] != ','; });
        behind_.clear();
        if (keyword_->words.empty()) keyword_->value.begin = word.begin;
        keyword_->words.push_back(word);
        keyword_->value.end = word.end;
        keyword_->span.end = word.end;
        at_ = word.end;
    }

    void add_text(Span word) {
        release();
        (*visit_)({ItemKind::Text, word, place_.at(word.begin), {}, {}, {}});
        at_ = word.end;
    }

    void take_between(std::size_t end) {
        const Span span{at_, end};
        at_ = end;
        if (keyword_)
            behind_.push_back(span);
        else
            give(span);
    }

    /// Gives the keyword with all that was held back.
    void release() {
        if (!keyword_) return;
        (*visit_)(*std::exchange(keyword_, std::nullopt));
        for (std::vector<Span>* const spans : {&inside_, &behind_}) {
            for (const Span span : *spans) give(span);
            spans->clear();
        }
    }

    /// Gives a comment or a separator.
    void give(Span span) {
        const ItemKind kind = text_[span.begin] == '!' ? ItemKind::Comment : ItemKind::Separator;
        (*visit_)({kind, span, place_.at(span.begin), {}, {}, {}});
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

    [[nodiscard]] std::size_t word_end() const noexcept {
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
    /// `!`, `$` or line end. A search in vain has passed no quote of its kind, so there is at most
    /// one for each kind before that end.
    [[nodiscard]] std::size_t quote_end(char quote) const noexcept {
        std::size_t end = at_ + 1;
        while (end < end_ && text_[end] != quote && !ends_quotable(text_[end])) ++end;
        return end < end_ && text_[end] == quote ? end + 1 : 0;
    }

    /// Comments and ends of groups are looked for before quotes.
    static bool ends_quotable(char c) noexcept { return c == '!' || c == '$' || is_line_end(c); }

    std::string_view text_;
    std::size_t end_;
    std::size_t at_;
    bool glues_lines_;
    PlaceCounter place_;
    const ItemVisitor* visit_ = nullptr;
    std::optional<Item> keyword_;  // the next word may belong to its value
    std::vector<Span> inside_;     // comments and signs between the words of the value
    std::vector<Span> behind_;     // and commas behind the last of them
};

}  // namespace

void for_each_keyword_item(std::string_view text, const Group& group, const ItemVisitor& visit) {
    KeywordItems(text, group).run(visit);
}

std::vector<Item> keyword_items(std::string_view text, const Group& group) {
    std::vector<Item> items;
    for_each_keyword_item(text, group, [&items](Item item) { items.push_back(std::move(item)); });
    return items;
}

}  // namespace nurl::input::gamess::source
