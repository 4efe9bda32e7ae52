#include "source/compare_cards.hpp"

#include <string>
#include <utility>

#include "source/cards.hpp"
#include "source/compare_data.hpp"
#include "source/compare_sequence.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

namespace {

/// Where a card stands besides on a line of its own. GAMESS may not read it there.
struct Sharing {
    bool header_line = false;
    bool end_line = false;

    bool operator==(const Sharing&) const = default;
};

/// The cards of one copy of a group.
class CardList {
public:
    explicit CardList(const Copy& copy)
        : deck_(copy.deck), group_(copy.group), end_line_begin_(begin_of_end_line(copy)) {
        if (group_.kind == GroupKind::Data) {
            cards_ = data_cards(deck_, group_, copy.rules);
            return;
        }
        const bool is_text = group_.kind == GroupKind::FixedColumns;
        for_each_card_item(deck_.text(), group_, [&](const Item& item) {
            if (item.kind == ItemKind::Card) add(item, is_text);
        });
    }

    [[nodiscard]] std::size_t size() const noexcept { return cards_.size(); }
    [[nodiscard]] const ComparedCard& card(std::size_t i) const noexcept { return cards_[i]; }

    [[nodiscard]] Sharing sharing(std::size_t i) const noexcept {
        const ComparedCard& card = cards_[i];
        return {card.position.line == group_.line, card.span.end > end_line_begin_};
    }

    /// A card as it is shown to people: what shares its line is shown too.
    [[nodiscard]] std::string shown(std::size_t i) const {
        const ComparedCard& card = cards_[i];
        const std::string_view line = deck_.text(card.span);
        const bool is_joined = line.find_first_of("\r\n") != std::string_view::npos;
        std::string text{is_joined ? joined(card.words) : std::string{line}};
        if (!card.is_text || group_.kind == GroupKind::Data)
            while (!text.empty() && is_padding(text.back())) text.pop_back();
        if (sharing(i).header_line) text.insert(0, deck_.text(group_.header));
        if (sharing(i).end_line) text += " " + std::string{deck_.text(group_.terminator)};
        return text;
    }

private:
    static std::size_t begin_of_end_line(const Copy& copy) noexcept {
        if (copy.group.terminator.empty()) return copy.deck.text().size();
        return line_begin(copy.deck.text(), copy.group.terminator.begin);
    }

    void add(const Item& item, bool is_text) {
        ComparedCard card{{}, item.span, item.position, WordRule::Exact, is_text, {}, {}};
        if (is_text)
            card.text = deck_.text(item.span);
        else
            card.words = card_words(deck_.text(), item);
        cards_.push_back(std::move(card));
    }

    const Deck& deck_;
    const Group& group_;
    std::size_t end_line_begin_;
    std::vector<ComparedCard> cards_;
};

bool is_same(const ComparedCard& a, const ComparedCard& b) {
    if (a.part != b.part) return false;
    return a.is_text ? a.text == b.text : same_words(a.words, b.words, a.rule);
}

class CardComparison {
public:
    CardComparison(const Copy& a, const Copy& b, std::vector<Difference>& differences)
        : group_(a.group), a_(a), b_(b), differences_(differences) {}

    void run() {
        const auto same = [this](std::size_t i, std::size_t j) {
            return is_same(a_.card(i), b_.card(j)) && a_.sharing(i) == b_.sharing(j);
        };
        for (const UnequalRow& row : unequal_rows(a_.size(), b_.size(), same)) report(row);
    }

private:
    /// Cards that are for something else are no change of one card.
    void report(const UnequalRow& row) {
        if (row.a && row.b && a_.card(*row.a).part != b_.card(*row.b).part) {
            add({row.a, std::nullopt});
            add({std::nullopt, row.b});
        } else {
            add(row);
        }
    }

    void add(const UnequalRow& row) {
        Difference difference{DifferenceKind::Line,
                              shown_name(group_.name),
                              group_.occurrence,
                              "",
                              "",
                              "",
                              std::nullopt,
                              std::nullopt};
        difference.key = row.a ? a_.card(*row.a).part : b_.card(*row.b).part;
        if (row.a) {
            difference.before = a_.shown(*row.a);
            difference.before_position = a_.card(*row.a).position;
        }
        if (row.b) {
            difference.after = b_.shown(*row.b);
            difference.after_position = b_.card(*row.b).position;
        }
        differences_.push_back(std::move(difference));
    }

    const Group& group_;
    CardList a_;
    CardList b_;
    std::vector<Difference>& differences_;
};

}  // namespace

void compare_cards(const Copy& a, const Copy& b, std::vector<Difference>& differences) {
    CardComparison(a, b, differences).run();
}

}  // namespace nurl::input::gamess::source
