// One walk over the cards. What a card is for depends on what came before it, so the walk is a
// state machine with one function per state; each takes one card and names the next state.
#include "source/data_layout.hpp"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "model/text_view.hpp"
#include "source/cards.hpp"
#include "source/keyword_lookup.hpp"
#include "source/word_value.hpp"

namespace nurl::input::gamess::source {

namespace {

struct StyleName {
    std::string_view value;
    CoordinateStyle style;
};

/// The values of `COORD` that are not read as Cartesian atoms. GAMESS has no ZMAT; decks that say
/// so hold what ZMT stands for.
constexpr auto style_names = std::to_array<StyleName>({
    {"HINT", CoordinateStyle::Hint},
    {"ZMT", CoordinateStyle::ZMatrix},
    {"ZMAT", CoordinateStyle::ZMatrix},
    {"ZMTMPC", CoordinateStyle::MopacStyle},
    {"FRAGONLY", CoordinateStyle::None},
    {"TINKER", CoordinateStyle::None},
});

bool has_group(const Deck& deck, std::string_view name) noexcept {
    return std::ranges::any_of(deck.sections(), [name](const Group& group) {
        return group.visible && group.name == name;
    });
}

bool is_word(const Deck& deck, Span word, std::string_view expected) noexcept {
    return detail::equal_ignoring_case(deck.text(word), expected);
}

bool begins_with_numbers(const Deck& deck, std::span<const Span> words, std::size_t count) {
    return words.size() >= count && std::ranges::all_of(words.first(count), [&deck](Span word) {
               return real_of(deck.text(word)).has_value();
           });
}

bool is_blank(const Item& card) noexcept { return card.words.empty(); }

/// Two points of three coordinates each.
bool is_first_axis_card(const Deck& deck, const Item& card) {
    return begins_with_numbers(deck, card.words, 6);
}

/// A point, and the direction of the plane.
bool is_second_axis_card(const Deck& deck, const Item& card) {
    if (!begins_with_numbers(deck, card.words, 3)) return false;
    return card.words.size() == 3 || is_word(deck, card.words[3], "PARALLEL") ||
           is_word(deck, card.words[3], "NORMAL");
}

class LayoutReader {
public:
    LayoutReader(const Deck& deck, const Group& data, const DataRules& rules) : deck_(deck) {
        // The two groups beside $DATA hold a basis set of their own under Cartesian atoms.
        const bool is_molecule = data.name == "DATA";
        if (is_molecule) style_ = rules.style;
        has_basis_ =
            !is_molecule || (rules.has_inline_basis && style_ != CoordinateStyle::ZMatrix &&
                             style_ != CoordinateStyle::MopacStyle);
    }

    DataLayout run(const Group& data) {
        State state = style_ == CoordinateStyle::None ? State::Rest : State::Title;
        for_each_card_item(deck_.text(), data, [&](Item item) {
            if (item.kind == ItemKind::Card) state = take(state, std::move(item));
        });
        return std::move(layout_);
    }

private:
    enum class State { Title, PointGroup, Axis, SecondAxis, Atom, Basis, Variables, Rest };

    State take(State state, Item card) {
        switch (state) {
            case State::Title:
                layout_.title = std::move(card);
                return State::PointGroup;
            case State::PointGroup:
                return take_point_group(std::move(card));
            case State::Axis:
                return take_axis(std::move(card));
            case State::SecondAxis:
                return take_second_axis(std::move(card));
            case State::Atom:
                return take_atom(std::move(card));
            case State::Basis:
                return take_basis(std::move(card));
            case State::Variables:
                return take_variable(std::move(card));
            case State::Rest:
                break;
        }
        layout_.rest.push_back(std::move(card));
        return State::Rest;
    }

    State take_point_group(Item card) {
        layout_.point_group = std::move(card);
        return is_c1(deck_, *layout_.point_group) ? State::Atom : State::Axis;
    }

    /// Without its blank card, the first atom stands in its place.
    State take_axis(Item card) {
        const bool is_standard = is_blank(card);
        if (!is_standard && !is_first_axis_card(deck_, card)) return take_atom(std::move(card));
        layout_.axis.push_back(std::move(card));
        const std::vector<Span>& names = layout_.point_group->words;
        const bool is_inversion = !names.empty() && is_word(deck_, names.front(), "CI");
        return is_standard || is_inversion ? State::Atom : State::SecondAxis;
    }

    State take_second_axis(Item card) {
        if (!is_second_axis_card(deck_, card)) return take_atom(std::move(card));
        layout_.axis.push_back(std::move(card));
        return State::Atom;
    }

    State take_atom(Item card) {
        if (is_blank(card)) {
            layout_.rest.push_back(std::move(card));
            const bool ends_atoms = style_ == CoordinateStyle::ZMatrix && !layout_.atoms.empty();
            return ends_atoms ? State::Variables : State::Atom;
        }
        layout_.atoms.push_back({std::move(card), {}, {}});
        return has_basis_ ? State::Basis : State::Atom;
    }

    State take_basis(Item card) {
        AtomCards& atom = layout_.atoms.back();
        if (is_blank(card)) {
            atom.blank = std::move(card);
            return State::Atom;
        }
        atom.basis.push_back(std::move(card));
        return State::Basis;
    }

    State take_variable(Item card) {
        if (!is_blank(card)) layout_.variables.push_back(std::move(card));
        return State::Variables;
    }

    const Deck& deck_;
    CoordinateStyle style_ = CoordinateStyle::Cartesian;
    bool has_basis_ = false;  // the basis set stands under each atom
    DataLayout layout_;
};

}  // namespace

CoordinateStyle coordinate_style(const Deck& deck) {
    const auto found = find_last(deck, "CONTRL", "COORD");
    if (!found || found->item.words.empty()) return CoordinateStyle::Cartesian;
    const std::string_view value = deck.text(found->item.words.front());
    const auto* const hit = std::ranges::find_if(style_names, [value](const StyleName& name) {
        return detail::equal_ignoring_case(value, name.value);
    });
    return hit == style_names.end() ? CoordinateStyle::Cartesian : hit->style;
}

bool has_inline_basis(const Deck& deck) {
    return !has_group(deck, "BASIS") && !has_group(deck, "DFTB");
}

bool is_c1(const Deck& deck, const Item& point_group) {
    return !point_group.words.empty() && is_word(deck, point_group.words.front(), "C1");
}

DataRules data_rules(const Deck& deck) { return {coordinate_style(deck), has_inline_basis(deck)}; }

DataLayout read_data_layout(const Deck& deck, const Group& data, const DataRules& rules) {
    return LayoutReader(deck, data, rules).run(data);
}

}  // namespace nurl::input::gamess::source
