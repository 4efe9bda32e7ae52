#include "source/check/molecule.hpp"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "model/text_view.hpp"
#include "source/check/atom_card.hpp"
#include "source/check/line_room.hpp"
#include "source/check/point_group.hpp"
#include "source/check/quote.hpp"
#include "source/line_ends.hpp"
#include "source/word_value.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

/// The words of a card with one space between them.
std::string shown_card(const Deck& deck, const Item& card) {
    std::string text;
    for (const Span word : card.words) {
        if (!text.empty()) text += ' ';
        text += deck.text(word);
    }
    return shortened(text);
}

/// Whether a card fills its lines from the first column. The header stands before all cards.
bool begins_line(const Deck& deck, const Item& card) noexcept {
    return is_line_end(deck.text()[card.span.begin - 1]);
}

/// A blank line in front of a card, unless the card shares its line with another one.
std::vector<Edit> blank_line_before(const Deck& deck, const Item& card) {
    const std::size_t place = card.span.begin;
    if (!begins_line(deck, card)) return {};
    return {{{place, place}, std::string{line_end_before(deck, place)}}};
}

/// Whether a basis set is one that a semiempirical method brings along; no blank card has to close
/// it.
bool is_semiempirical(const Deck& deck, const AtomCards& atom) {
    constexpr auto methods = std::to_array<std::string_view>({"MNDO", "AM1", "PM3", "RM1"});
    const std::string_view name = deck.text(atom.basis.front().words.front());
    return std::ranges::any_of(methods, [name](std::string_view method) {
        return detail::equal_ignoring_case(name, method);
    });
}

/// Reports the atoms that stand among the cards of a basis set.
void check_inside_basis(const Context& context, const AtomCards& atom, Findings& findings) {
    std::string_view owner = context.deck().text(atom.card.words.front());
    for (const Item& card : atom.basis) {
        if (!is_certain_atom(context.deck(), card)) continue;
        findings.add(
            card.span,
            "No blank card closes the basis set of atom " + quoted(owner) + " before this atom", {},
            blank_line_before(context.deck(), card));
        owner = context.deck().text(card.words.front());
    }
}

/// Where a line begins behind a card of `$DATA`; nothing when the card shares its line with more
/// than a comment, goes on in the next one, or ends the text.
std::optional<std::size_t> line_behind(const Deck& deck, const Item& card) {
    const Span rest{card.span.end, line_end(deck.text(), card.span.end)};
    const std::string_view shown = detail::trim_view(deck.text(rest));
    if (!shown.empty() && !shown.starts_with('!')) return std::nullopt;
    const std::size_t next = next_line(deck.text(), rest.end);
    if (next == rest.end) return std::nullopt;
    return next;
}

/// Reports a basis set that runs into the end of `$DATA`. The blank card goes on a line of its own.
void check_end_of_basis(const Context& context, const AtomCards& atom, Findings& findings) {
    const Item& last = atom.basis.back();
    if (atom.blank || is_certain_atom(context.deck(), last)) return;
    std::vector<Edit> fix;
    if (const auto place = line_behind(context.deck(), last))
        fix.push_back({{*place, *place}, std::string{line_end_before(context.deck(), *place)}});
    findings.add(last.span, "No blank card closes the last basis set before the end of $DATA", {},
                 std::move(fix));
}

}  // namespace

void find_missing_blank_card(const Context& context, Findings& findings) {
    const Deck& deck = context.deck();
    const DataLayout& layout = context.layout();
    if (layout.atoms.empty() || layout.point_group->words.empty()) return;
    if (is_c1(deck, *layout.point_group) || !layout.axis.empty()) return;
    const Item& atom = layout.atoms.front().card;
    findings.add(atom.span,
                 "Point group " + shown_card(deck, *layout.point_group) +
                     " needs a blank card before the first atom",
                 {}, blank_line_before(deck, atom));
}

void find_blank_card_after_c1(const Context& context, Findings& findings) {
    const Deck& deck = context.deck();
    const DataLayout& layout = context.layout();
    if (layout.atoms.empty() || !is_c1(deck, *layout.point_group)) return;
    const std::size_t first_atom = layout.atoms.front().card.span.begin;
    std::vector<Edit> fix;
    std::size_t removed = 0;  // up to here
    for (const Item& card : layout.rest) {
        if (card.span.begin > first_atom) break;
        if (card.span.begin < removed) continue;  // on a line with the one before
        removed = next_line(deck.text(), card.span.end);
        fix.push_back({{card.span.begin, removed}, ""});
    }
    if (fix.empty()) return;
    const Span blank = layout.rest.front().span;
    findings.add(blank, "Behind C1 the first atom follows at once, without a blank card", {},
                 std::move(fix));
}

void find_missing_blank_after_basis(const Context& context, Findings& findings) {
    const Deck& deck = context.deck();
    for (const AtomCards& atom : context.layout().atoms) {
        if (atom.basis.empty() || is_semiempirical(deck, atom)) continue;
        // Atoms with nothing between them have their basis set from elsewhere.
        if (is_certain_atom(deck, atom.basis.front())) continue;
        check_inside_basis(context, atom, findings);
        check_end_of_basis(context, atom, findings);
    }
}

void find_point_group_name(const Context& context, Findings& findings) {
    const Deck& deck = context.deck();
    const auto& card = context.layout().point_group;
    if (!card) return;
    if (card->words.empty() || is_like_atom(deck, *card)) {
        findings.add(card->span, "The second card of $DATA names no point group");
        return;
    }
    const Span word = card->words.front();
    const std::string_view name = deck.text(word);
    const PointGroupName known = read_point_group(name);
    if (known.is_known && !known.needs_order) return;
    if (known.is_known) {
        const auto order =
            card->words.size() > 1 ? integer_of(deck.text(card->words[1])) : std::nullopt;
        if (order && *order >= 1 && *order <= highest_axis_order) return;
        findings.add(word, "Point group " + shortened(name) +
                               " needs the order of its axis, 1 to 8, behind it");
        return;
    }
    std::vector<Edit> fix;
    std::string hint;
    if (!known.written_as.empty()) {
        hint = "did you mean " + known.written_as + "?";
        fix.push_back({word, known.written_as});
    }
    findings.add(word, "GAMESS knows no point group " + quoted(name), std::move(hint),
                 std::move(fix));
}

}  // namespace nurl::input::gamess::source::checks
