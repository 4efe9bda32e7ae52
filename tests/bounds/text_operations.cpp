#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "bounds/operations.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/source/check.hpp"
#include "nurl/input/gamess/source/compare.hpp"
#include "nurl/input/gamess/source/deck.hpp"
#include "nurl/input/gamess/source/wrap.hpp"

namespace nurl::test {

namespace {

using bench::growth::measured;
using input::gamess::source::Deck;
using input::gamess::source::Group;
using input::gamess::source::Item;
namespace source = input::gamess::source;

/// The group that edits are made in.
std::string first_group(const Deck& deck) {
    return deck.sections().empty() ? "NONE" : deck.sections().front().name;
}

void index(const std::string& text) {
    std::string copy = text;
    static_cast<void>(measured([&] { return Deck{std::move(copy)}; }));
}

void copy(const std::string& text) {
    const Deck deck{text};
    static_cast<void>(measured([&] { return Deck{deck}; }));
}

void find_all(const std::string& text) {
    const Deck deck{text};
    const std::string group = first_group(deck);
    static_cast<void>(measured([&] { return deck.find_all(group); }));
}

void list_keywords(const std::string& text) {
    const Deck deck{text};
    const std::string group = first_group(deck);
    static_cast<void>(measured([&] { return deck.list_keywords(group); }));
}

void get_keyword(const std::string& text) {
    const Deck deck{text};
    const std::string group = first_group(deck);
    static_cast<void>(measured([&] { return deck.get_keyword(group, "A"); }));
}

template <std::size_t Columns>
void fold(const std::string& text) {
    const Deck deck{text};
    static_cast<void>(measured([&] { return source::wrap(deck, Columns); }));
}

/// Makes a change of the first group.
template <class Change>
void change(const std::string& text, Change make) {
    Deck deck{text};
    const std::string group = first_group(deck);
    static_cast<void>(measured([&] {
        try {
            make(deck, group);
        } catch (const std::runtime_error&) {
            return false;
        }
        return true;
    }));
}

void set_keyword(const std::string& text) {
    change(text, [](Deck& deck, const std::string& at) { deck.set_keyword(at, "A", "2"); });
}

void add_keyword(const std::string& text) {
    change(text, [](Deck& deck, const std::string& at) { deck.set_keyword(at, "NEW", "2"); });
}

void remove_keyword(const std::string& text) {
    change(text, [](Deck& deck, const std::string& at) {
        static_cast<void>(deck.remove_keyword(at, "A"));
    });
}

void add_group(const std::string& text) {
    change(text, [](Deck& deck, const std::string&) { deck.set_keyword("NEW", "A", "2"); });
}

void remove_groups(const std::string& text) {
    change(text,
           [](Deck& deck, const std::string& at) { static_cast<void>(deck.remove_section(at)); });
}

void replace_group(const std::string& text) {
    change(text, [](Deck& deck, const std::string& at) {
        deck.replace_section(at, 1, " $" + at + " NEW=1 $END");
    });
}

void take_apart(const std::string& text) {
    const Deck deck{text};
    static_cast<void>(measured([&] {
        std::vector<std::vector<Item>> all;
        for (const Group& group : deck.sections()) all.push_back(deck.items(group));
        return all;
    }));
}

void check(const std::string& text) {
    const Deck deck{text};
    static_cast<void>(measured([&] { return source::check(deck); }));
}

/// Compares a deck with itself, but for an `x` that is a `y`. The texts count both.
void compare(const std::string& text) {
    std::string other = text;
    std::ranges::replace(other, 'x', 'y');
    const Deck a{text};
    const Deck b{std::move(other)};
    static_cast<void>(measured([&] { return source::compare(a, b); }));
}

constexpr auto operations = std::to_array<Operation>({
    {"index", index},
    {"copy", copy},
    {"find the copies of a group in", find_all},
    {"list the keywords of", list_keywords},
    {"get a keyword of", get_keyword},
    {"fold", fold<source::line_width>},
    {"fold to two columns", fold<2>},
    {"set a keyword in", set_keyword},
    {"add a keyword to", add_keyword},
    {"remove a keyword from", remove_keyword},
    {"add a group to", add_group},
    {"remove the groups of", remove_groups},
    {"replace a group of", replace_group},
});

constexpr auto listings = std::to_array<Operation>({
    {"take apart", take_apart},
    {"check", check},
    {"compare", compare},
});

}  // namespace

std::span<const Operation> text_operations() noexcept { return operations; }

std::span<const Operation> listing_operations() noexcept { return listings; }

}  // namespace nurl::test
