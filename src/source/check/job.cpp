#include "source/check/job.hpp"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "model/text_view.hpp"
#include "source/check/atom_card.hpp"
#include "source/check/element_name.hpp"
#include "source/word_value.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

using detail::equal_ignoring_case;

/// The group that a finding about the whole deck stands at: the first that GAMESS finds, or null.
const Group* first_visible(const Deck& deck) noexcept {
    const auto groups = deck.sections();
    const auto hit = std::ranges::find_if(groups, &Group::visible);
    return hit == groups.end() ? nullptr : &*hit;
}

/// Whether a card of a basis set may be an atom, as where a run chooses its basis set by itself.
bool has_atoms_among_basis(const Context& context) {
    return std::ranges::any_of(context.layout().atoms, [&context](const AtomCards& atom) {
        return std::ranges::any_of(atom.basis, [&context](const Item& card) {
            return is_like_atom(context.deck(), card);
        });
    });
}

/// Whether the cards of `$DATA` are all atoms of the molecule and nothing else.
bool lists_all_atoms(const Context& context) {
    const DataLayout& layout = context.layout();
    if (layout.atoms.empty() || has_atoms_among_basis(context)) return false;
    if (is_c1(context.deck(), *layout.point_group)) return true;
    const std::string_view coord = context.last_word("CONTRL", "COORD");
    constexpr auto all_atoms =
        std::to_array<std::string_view>({"CART", "PRINAXIS", "ZMT", "ZMAT", "ZMTMPC"});
    return std::ranges::any_of(
        all_atoms, [coord](std::string_view name) { return equal_ignoring_case(coord, name); });
}

/// Whether the charges of the atoms are not all that decides the number of electrons.
bool has_other_electrons(const Context& context) {
    constexpr auto groups = std::to_array<std::string_view>(
        {"FMO", "NEO", "ECP", "MCP", "QUANPO", "LINK", "TINXYZ", "FFDATA", "FFPDB"});
    if (std::ranges::any_of(groups, [&](std::string_view name) { return context.has_group(name); }))
        return true;
    const std::string_view potential = context.last_word("CONTRL", "PP");
    return equal_ignoring_case(potential, "READ") || equal_ignoring_case(potential, "MCP");
}

/// The charge of an atom; nothing when it cannot be told. Dummy atoms have none.
std::optional<double> charge_of(const Atom& atom, CoordinateStyle style) {
    if (style == CoordinateStyle::Cartesian || style == CoordinateStyle::Hint) return atom.charge;
    if (equal_ignoring_case(atom.name, "X")) return 0.0;
    if (const auto number = integer_of(atom.name)) return static_cast<double>(*number);
    const auto element = element_of(atom.name);
    return element ? std::optional<double>{*element} : std::nullopt;
}

/// The sum of the charges, negative ones being no nuclei; nothing when one cannot be told, or is no
/// whole number.
std::optional<std::int64_t> total_charge(const Context& context) {
    constexpr double largest = 1.0e9;
    double sum = 0.0;
    for (const Atom& atom : context.atoms()) {
        const auto charge = charge_of(atom, context.style());
        if (!charge || *charge != std::floor(*charge)) return std::nullopt;
        sum += std::max(*charge, 0.0);
    }
    return sum < largest ? std::optional{static_cast<std::int64_t>(sum)} : std::nullopt;
}

/// A whole number of `$CONTRL`; nothing when it is there and cannot be read, or is out of range.
std::optional<std::int64_t> control_number(const Context& context, std::string_view key,
                                           std::int64_t otherwise) {
    constexpr std::int64_t largest = 1'000'000'000;
    const std::string_view word = context.last_word("CONTRL", key);
    if (word.empty()) return otherwise;
    const auto number = integer_of(word);
    return number && std::abs(*number) <= largest ? number : std::nullopt;
}

/// The keyword that the number of electrons is at odds with, or the molecule.
Span electron_place(const Context& context) {
    for (const std::string_view key : {"MULT", "ICHARG"})
        if (const Item* const item = context.last("CONTRL", key)) return item->span;
    return context.data()->header;
}

}  // namespace

void find_electron_count(const Context& context, Findings& findings) {
    if (!lists_all_atoms(context) || has_other_electrons(context)) return;
    const auto charges = total_charge(context);
    const auto charge = control_number(context, "ICHARG", 0);
    const auto multiplicity = control_number(context, "MULT", 1);
    if (!charges || !charge || !multiplicity) return;
    const std::int64_t electrons = *charges - *charge;
    if (electrons < 0 || (electrons + *multiplicity) % 2 != 0) return;
    findings.add(electron_place(context),
                 std::to_string(electrons) + (electrons == 1 ? " electron does" : " electrons do") +
                     " not go with MULT=" + std::to_string(*multiplicity) +
                     ": the charges of the atoms are " + std::to_string(*charges) +
                     " in all, ICHARG is " + std::to_string(*charge));
}

void find_missing_vec(const Context& context, Findings& findings) {
    const Item* const guess = context.last("GUESS", "GUESS");
    if (guess == nullptr || guess->words.empty() || context.has_group("FMO")) return;
    const Span word = guess->words.front();
    if (!equal_ignoring_case(context.deck().text(word), "MOREAD")) return;
    // A file without a molecule is a part of a deck, and the orbitals may be in another part.
    if (context.data() == nullptr) return;
    const auto groups = context.deck().sections();
    const bool has_orbitals = std::ranges::any_of(
        groups, [](const Group& group) { return group.name.starts_with("VEC"); });
    if (!has_orbitals)
        findings.add(word, "GUESS=MOREAD needs orbitals to read, and the deck has no $VEC");
}

void find_missing_molecule(const Context& context, Findings& findings) {
    if (context.data() != nullptr || context.style() == CoordinateStyle::None) return;
    const Group* const first = first_visible(context.deck());
    if (first == nullptr || context.has_hidden_group("DATA")) return;
    findings.add(first->header, "The deck has no $DATA, which GAMESS needs for the molecule");
}

void find_missing_fmoxyz(const Context& context, Findings& findings) {
    const std::vector<Group> fragments = context.deck().find_all("FMO");
    if (fragments.empty() || context.data() == nullptr) return;
    if (context.has_group("FMOXYZ") || context.has_hidden_group("FMOXYZ")) return;
    findings.add(fragments.front().header,
                 "$FMO needs the coordinates of the atoms, and the deck has no $FMOXYZ");
}

}  // namespace nurl::input::gamess::source::checks
