/// @file
/// What the rules know about a deck, taken apart once for all of them.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "nurl/input/gamess/schema.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "source/data_layout.hpp"

namespace nurl::input::gamess::source::checks {

/// A visible group with keywords.
struct KeywordGroup {
    const Group* group = nullptr;               ///< never null
    const schema::SectionSpec* spec = nullptr;  ///< null when the schema does not know the group
    std::vector<Item> items;                    ///< its pieces
    std::vector<const schema::EntrySpec*> entries;  ///< of each piece: what the schema says about
                                                    ///< the keyword; null when it is none, or not
                                                    ///< listed
};

/// A keyword where it stands.
struct KeywordUse {
    const KeywordGroup* group = nullptr;       ///< its group
    const Item* item = nullptr;                ///< of kind `ItemKind::Keyword`
    const schema::EntrySpec* entry = nullptr;  ///< null when the schema does not list it
};

/// An atom of the molecule.
struct Atom {
    const Item* card = nullptr;    ///< its card, with at least one word
    std::string_view name;         ///< the first word
    std::optional<double> charge;  ///< the second word, where it is a nuclear charge and readable
    std::optional<std::array<double, 3>> place;  ///< Cartesian coordinates in the deck's unit, zero
                                                 ///< where left out; nothing when all are, when one
                                                 ///< is not readable, or for other coordinates
};

/// A deck, which must outlive it, with its keyword groups and its molecule.
class Context {
public:
    /// Takes the deck apart. Linear in the length of its text.
    explicit Context(const Deck& deck);

    /// The deck.
    [[nodiscard]] const Deck& deck() const noexcept { return deck_; }
    /// All visible groups with keywords, in the order of the text.
    [[nodiscard]] std::span<const KeywordGroup> keyword_groups() const noexcept { return groups_; }
    /// The pieces of a group; null unless it is visible and has keywords.
    [[nodiscard]] const KeywordGroup* keywords_of(const Group& group) const noexcept;
    /// Whether GAMESS finds a group of that name, given in upper case.
    [[nodiscard]] bool has_group(std::string_view name) const noexcept;
    /// Whether there is a group of that name, given in upper case, that GAMESS does not find.
    [[nodiscard]] bool has_hidden_group(std::string_view name) const noexcept;

    /// The keyword whose value counts; null when there is none. Names in upper case, the keyword
    /// without an index.
    [[nodiscard]] const Item* last(std::string_view section, std::string_view key) const noexcept;
    /// The first word of the value that counts; empty when there is none.
    [[nodiscard]] std::string_view last_word(std::string_view section,
                                             std::string_view key) const noexcept;

    /// The `$DATA` that GAMESS reads, the first one; null when it finds none.
    [[nodiscard]] const Group* data() const noexcept { return data_; }
    /// Its cards; nothing in it without `data()`.
    [[nodiscard]] const DataLayout& layout() const noexcept { return layout_; }
    /// How the deck lays its atoms out.
    [[nodiscard]] CoordinateStyle style() const noexcept { return style_; }
    /// The atoms on the cards, in order.
    [[nodiscard]] std::span<const Atom> atoms() const noexcept { return atoms_; }

    /// What ends the first line of the text; LF when nothing does.
    [[nodiscard]] std::string_view line_end() const noexcept { return line_end_; }

private:
    void add_keyword_group(const Group& group);
    void read_molecule();

    const Deck& deck_;
    std::vector<KeywordGroup> groups_;
    const Group* data_ = nullptr;
    DataLayout layout_;
    CoordinateStyle style_ = CoordinateStyle::Cartesian;
    std::vector<Atom> atoms_;
    std::string_view line_end_;
};

/// Calls `visit` with each keyword of a deck that stands in a group the schema knows.
template <class Visitor>
void for_each_keyword(const Context& context, Visitor visit) {
    for (const KeywordGroup& group : context.keyword_groups()) {
        if (group.spec == nullptr) continue;
        for (std::size_t i = 0; i < group.items.size(); ++i)
            if (group.items[i].kind == ItemKind::Keyword)
                visit(KeywordUse{&group, &group.items[i], group.entries[i]});
    }
}

}  // namespace nurl::input::gamess::source::checks
