#include "source/cards.hpp"

#include <algorithm>
#include <optional>
#include <utility>

#include "model/text_view.hpp"
#include "source/line_ends.hpp"
#include "source/place.hpp"

namespace nurl::input::gamess::source {

namespace {

class CardItems {
public:
    CardItems(std::string_view text, const Group& group)
        : text_(text), group_(group), place_(text, group) {}

    void run(const ItemVisitor& visit) {
        visit_ = &visit;
        const auto [begin, end] = group_.body;
        for (std::size_t at = begin; at < end;) {
            const std::size_t stop = std::min(line_end(text_, at), end);
            const bool is_whole = at != begin && stop != end;
            if (is_whole || !detail::is_blank_text(text_.substr(at, stop - at)))
                take_line({at, stop});
            at = std::min(next_line(text_, stop), end);
        }
        release();
    }

private:
    void take_line(Span line) {
        const bool is_title = group_.kind == GroupKind::Data && !has_title_;
        has_title_ = true;
        if (is_title || group_.kind == GroupKind::FixedColumns) {
            begin_card(line);
            return;
        }
        const Span comment = find_comment(line);
        const Span content{line.begin, comment.begin};
        const bool joins_before = std::exchange(joins_next_, false);
        // A line that is nothing but a comment is not there at all.
        const bool is_there = comment.empty() || !is_blank(content) || joins_before;
        if (is_there) take_content(content, joins_before);
        if (!comment.empty()) take_between(comment);
    }

    void take_content(Span content, bool joins_before) {
        Span rest = content;
        for (std::size_t stop = find(';', rest); stop < rest.end; stop = find(';', rest)) {
            add_card({rest.begin, stop}, std::exchange(joins_before, false));
            take_between({stop, stop + 1});
            rest.begin = stop + 1;
        }
        const Span glue = find_glue(rest);
        const Span card{rest.begin, glue.begin};
        if (rest.begin == content.begin || !is_blank(card)) add_card(card, joins_before);
        if (glue.empty()) return;
        joins_next_ = true;
        take_between(glue);
    }

    /// Adds a card, or the words to the last one when the line before ended with a `>`.
    void add_card(Span span, bool joins_before) {
        if (!joins_before) begin_card(span);
        card_->span.end = span.end;
        std::size_t at = span.begin;
        while (at < span.end) {
            while (at < span.end && separates(text_[at])) ++at;
            const std::size_t begin = at;
            while (at < span.end && !separates(text_[at])) ++at;
            if (begin < at) card_->words.push_back({begin, at});
        }
    }

    void begin_card(Span span) {
        release();
        card_ = Item{ItemKind::Card, span, place_.at(span.begin), {}, {}, {}};
    }

    void take_between(Span span) {
        if (card_)
            behind_.push_back(span);
        else
            give(span);
    }

    /// Gives the card with what was held back behind it.
    void release() {
        if (!card_) return;
        (*visit_)(*std::exchange(card_, std::nullopt));
        for (const Span span : behind_) give(span);
        behind_.clear();
    }

    /// Gives a comment or a separator.
    void give(Span span) {
        const ItemKind kind = text_[span.begin] == '!' ? ItemKind::Comment : ItemKind::Separator;
        (*visit_)({kind, span, place_.at(span.begin), {}, {}, {}});
    }

    static bool separates(char c) noexcept { return detail::is_blank(c) || c == ','; }

    [[nodiscard]] bool is_blank(Span span) const noexcept {
        return detail::is_blank_text(text_.substr(span.begin, span.size()));
    }

    /// The first `c` in a span, or the end of the span.
    [[nodiscard]] std::size_t find(char c, Span span) const noexcept {
        const std::string_view part = text_.substr(span.begin, span.size());
        return span.begin + std::min(part.find(c), part.size());
    }

    [[nodiscard]] Span find_comment(Span line) const noexcept {
        return {find('!', line), line.end};
    }

    /// The `>` that ends a line, with the blanks behind it; otherwise empty, at the end of the
    /// line.
    [[nodiscard]] Span find_glue(Span rest) const noexcept {
        std::size_t end = rest.end;
        while (end > rest.begin && detail::is_blank(text_[end - 1])) --end;
        if (end > rest.begin && text_[end - 1] == '>') return {end - 1, rest.end};
        return {rest.end, rest.end};
    }

    std::string_view text_;
    const Group& group_;
    PlaceCounter place_;
    const ItemVisitor* visit_ = nullptr;
    std::optional<Item> card_;  // the next line may go on with it
    std::vector<Span> behind_;  // comments and signs behind it
    bool has_title_ = false;    // the title of a $DATA was met
    bool joins_next_ = false;   // the line before ended with a `>`
};

}  // namespace

void for_each_card_item(std::string_view text, const Group& group, const ItemVisitor& visit) {
    CardItems(text, group).run(visit);
}

}  // namespace nurl::input::gamess::source
