#include "source/check/context.hpp"

#include <algorithm>
#include <utility>

#include "source/keyword_lookup.hpp"
#include "source/line_ends.hpp"
#include "source/word_value.hpp"

namespace nurl::input::gamess::source::checks {

namespace {

/// The word of a card at a place; empty when it has fewer.
std::string_view word_at(const Deck& deck, const Item& card, std::size_t index) noexcept {
    return index < card.words.size() ? deck.text(card.words[index]) : std::string_view{};
}

std::optional<std::array<double, 3>> place_of(const Deck& deck, const Item& card) {
    std::array<double, 3> place{};
    if (card.words.size() <= 2) return std::nullopt;
    for (std::size_t axis = 0; axis < place.size(); ++axis) {
        const std::string_view word = word_at(deck, card, axis + 2);
        if (word.empty()) break;
        const auto value = real_of(word);
        if (!value) return std::nullopt;
        place.at(axis) = *value;
    }
    return place;
}

Atom read_atom(const Deck& deck, const Item& card, CoordinateStyle style) {
    Atom atom{&card, word_at(deck, card, 0), std::nullopt, std::nullopt};
    if (style == CoordinateStyle::Cartesian || style == CoordinateStyle::Hint)
        atom.charge = real_of(word_at(deck, card, 1));
    if (style == CoordinateStyle::Cartesian) atom.place = place_of(deck, card);
    return atom;
}

/// The last use of a keyword in one copy of a group, or null.
const Item* last_in(const KeywordGroup& group, std::string_view key) noexcept {
    for (std::size_t i = group.items.size(); i > 0; --i)
        if (is_key(group.items[i - 1], key)) return &group.items[i - 1];
    return nullptr;
}

}  // namespace

Context::Context(const Deck& deck)
    : deck_(deck), style_(coordinate_style(deck)), line_end_(line_end_near(deck.text(), 0)) {
    for (const Group& group : deck.sections()) {
        if (!group.visible) continue;
        if (group.kind == GroupKind::Keywords) add_keyword_group(group);
        if (data_ == nullptr && group.name == "DATA") data_ = &group;
    }
    if (data_ != nullptr) read_molecule();
}

void Context::add_keyword_group(const Group& group) {
    KeywordGroup taken{&group, schema::find_section(group.name), deck_.items(group), {}};
    taken.entries.resize(taken.items.size());
    if (taken.spec != nullptr) {
        const auto& known = taken.spec->entries;
        for (std::size_t i = 0; i < taken.items.size(); ++i) {
            if (taken.items[i].kind != ItemKind::Keyword) continue;
            const auto hit = known.find(schema::normalize_entry_name(taken.items[i].key));
            if (hit != known.end()) taken.entries[i] = &hit->second;
        }
    }
    groups_.push_back(std::move(taken));
}

void Context::read_molecule() {
    layout_ = read_data_layout(deck_, *data_, {style_, has_inline_basis(deck_)});
    atoms_.reserve(layout_.atoms.size());
    for (const AtomCards& cards : layout_.atoms)
        atoms_.push_back(read_atom(deck_, cards.card, style_));
}

const KeywordGroup* Context::keywords_of(const Group& group) const noexcept {
    const auto begin = [](const KeywordGroup& taken) { return taken.group->header.begin; };
    const auto hit = std::ranges::lower_bound(groups_, group.header.begin, {}, begin);
    return hit != groups_.end() && hit->group == &group ? &*hit : nullptr;
}

bool Context::has_group(std::string_view name) const noexcept {
    return std::ranges::any_of(deck_.sections(), [name](const Group& group) {
        return group.visible && group.name == name;
    });
}

bool Context::has_hidden_group(std::string_view name) const noexcept {
    return std::ranges::any_of(deck_.sections(), [name](const Group& group) {
        return !group.visible && group.name == name;
    });
}

const Item* Context::last(std::string_view section, std::string_view key) const noexcept {
    for (std::size_t i = groups_.size(); i > 0; --i) {
        const KeywordGroup& group = groups_[i - 1];
        if (group.group->name != section) continue;
        if (const Item* const item = last_in(group, key)) return item;
    }
    return nullptr;
}

std::string_view Context::last_word(std::string_view section, std::string_view key) const noexcept {
    const Item* const item = last(section, key);
    if (item == nullptr || item->words.empty()) return {};
    return deck_.text(item->words.front());
}

}  // namespace nurl::input::gamess::source::checks
