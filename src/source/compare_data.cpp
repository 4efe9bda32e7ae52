#include "source/compare_data.hpp"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "source/data_layout.hpp"
#include "source/line_ends.hpp"

namespace nurl::input::gamess::source {

namespace {

/// `NAME=value` says the same as `NAME value`.
ComparedWords without_equals(const ComparedWords& words) {
    ComparedWords parts;
    for (std::string_view word : words) {
        for (auto equals = word.find('='); equals != std::string_view::npos;
             equals = word.find('=')) {
            if (equals > 0) parts.push_back(word.substr(0, equals));
            word.remove_prefix(equals + 1);
        }
        if (!word.empty()) parts.push_back(word);
    }
    return parts;
}

class DataCards {
public:
    DataCards(const Deck& deck, const Group& group, const DataRules& rules)
        : deck_(deck), style_(rules.style), layout_(read_data_layout(deck, group, rules)) {}

    std::vector<ComparedCard> run() {
        add_title();
        if (layout_.point_group) add("point group", *layout_.point_group, WordRule::ByValue);
        for (const Item& card : layout_.axis) add("axis", card, WordRule::Padded);
        for (const AtomCards& atom : layout_.atoms) add(atom);
        for (const Item& card : layout_.variables) {
            add("variable", card, WordRule::Padded);
            cards_.back().words = without_equals(cards_.back().words);
        }
        for (const Item& card : layout_.rest)
            if (!card.words.empty() || counts_blank(card)) add("card", card, WordRule::ByValue);
        std::ranges::sort(cards_, {}, [](const ComparedCard& card) { return card.span.begin; });
        return std::move(cards_);
    }

private:
    void add_title() {
        if (!layout_.title) return;
        Span title = layout_.title->span;
        while (!title.empty() && is_padding(deck_.text()[title.end - 1])) --title.end;
        cards_.push_back({"title",
                          layout_.title->span,
                          layout_.title->position,
                          WordRule::Exact,
                          true,
                          deck_.text(title),
                          {}});
    }

    void add(const AtomCards& atom) {
        add("atom", atom.card, WordRule::Padded);
        for (const Item& card : atom.basis) add("basis", card, WordRule::ByValue);
        if (atom.blank) add("basis", *atom.blank, WordRule::ByValue);
        has_basis_ = has_basis_ || atom.blank || !atom.basis.empty();
    }

    void add(std::string_view part, const Item& card, WordRule rule) {
        cards_.push_back(
            {part, card.span, card.position, rule, false, {}, card_words(deck_.text(), card)});
    }

    /// Whether a blank card may change how GAMESS reads the next one.
    [[nodiscard]] bool counts_blank(const Item& card) const noexcept {
        if (has_basis_ || style_ == CoordinateStyle::MopacStyle) return true;
        if (style_ != CoordinateStyle::ZMatrix) return false;
        return layout_.atoms.empty() || card.span.begin < layout_.atoms.front().card.span.begin;
    }

    const Deck& deck_;
    CoordinateStyle style_;
    DataLayout layout_;
    std::vector<ComparedCard> cards_;
    bool has_basis_ = false;  // there is a basis set under an atom
};

}  // namespace

std::vector<ComparedCard> data_cards(const Deck& deck, const Group& group, const DataRules& rules) {
    return DataCards(deck, group, rules).run();
}

}  // namespace nurl::input::gamess::source
