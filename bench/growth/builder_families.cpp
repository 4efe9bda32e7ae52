// Building documents call by call.
#include <array>
#include <string>
#include <vector>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/builder.hpp"

namespace nurl::bench::growth {

namespace {

using nurl::input::gamess::AtomRecord;
using nurl::input::gamess::InputBuilder;

/// An atom that is no element and not near.
AtomRecord unknown_atom() { return {" Q9 ", {}, 1.0e300, 0.0, -1.0e-300}; }

void add_atoms(const Input& input) {
    require(!measured([&] {
                 InputBuilder builder;
                 for (std::size_t i = 0; i < input.n; ++i) builder.add_atom(unknown_atom());
                 return builder.to_string();
             }).empty());
}

void set_geometry(const Input& input) {
    const std::vector<AtomRecord> atoms(input.n, unknown_atom());
    require(measured([&] { return InputBuilder{}.set_geometry(atoms); }).input().atoms.size() ==
            input.n);
}

void add_groups(const Input& input) {
    require(!measured([&] {
                 InputBuilder builder;
                 for (std::size_t i = 0; i < input.n; ++i)
                     builder.add_section({"SCF", {{"A", "1"}}, {"text"}});
                 return builder.to_string();
             }).empty());
}

void add_keywords(const Input& input) {
    require(!measured([&] {
                 InputBuilder builder;
                 for (std::size_t i = 0; i < input.n; ++i)
                     builder.add_control_keyword(" a ", " 1 ");
                 return builder.to_string();
             }).empty());
}

/// The text is the symbol of an atom.
void add_long_symbol(const Input& input) {
    const AtomRecord atom{input.text, {}, 0.0, 0.0, 0.0};
    require(!measured([&] { return InputBuilder{}.add_atom(atom).to_string(); }).empty());
}

constexpr auto families = std::to_array<Family>({
    {"build and write a deck of n atoms", {}, add_atoms, costly_things},
    {"build a deck of n atoms at once", {}, set_geometry, things},
    {"build and write a deck of n groups", {}, add_groups, things},
    {"build and write a deck of n keywords", {}, add_keywords, things},
    {"build and write a deck with a symbol of n letters", {"", "h"}, add_long_symbol, swift_bytes},
    {"build and write a deck with a symbol behind n blanks",
     {"", " ", "h"},
     add_long_symbol,
     swift_bytes},
});

}  // namespace

std::span<const Family> builder_families() noexcept { return families; }

}  // namespace nurl::bench::growth
