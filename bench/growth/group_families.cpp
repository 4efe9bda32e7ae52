// Finding, adding, removing and writing groups in a document of n groups.
#include <array>
#include <string>
#include <utility>

#include "growth/family.hpp"
#include "growth/measure.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"

namespace nurl::bench::growth {

namespace {

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;

GamessInput document(const Input& input) {
    return nurl::input::gamess::parse_string(input.text).input;
}

void list_names(const Input& input) {
    const InputEditor editor{document(input)};
    require(!measured([&] { return editor.section_names(); }).empty());
}

void write(const Input& input) {
    const GamessInput deck = document(input);
    require(!measured([&] { return deck.to_string(); }).empty());
}

void find_last(const Input& input) {
    const GamessInput deck = document(input);
    require(measured([&] { return deck.find_section("LAST"); }) != nullptr);
}

/// A name may have any number of blanks around it.
void find_by_long_name(const Input& input) {
    const GamessInput deck = document(input);
    const std::string name = std::string(input.n, ' ') + "LAST";
    require(measured([&] { return deck.find_section(name); }) != nullptr);
}

void upsert(const Input& input) {
    GamessInput deck = document(input);
    require(measured([&] { return &deck.upsert_section("NEW"); })->entries.empty());
}

void ensure(const Input& input) {
    InputEditor editor{document(input)};
    require(measured([&] { return editor.ensure_section("NEW"), true; }));
    require(editor.has_section("NEW"));
}

void ensure_structured(const Input& input) {
    InputEditor editor{document(input)};
    require(measured([&] { return editor.ensure_section("GUESS"), true; }));
    require(editor.has_section("GUESS"));
}

void remove_last(const Input& input) {
    InputEditor editor{document(input)};
    require(measured([&] { return editor.remove_section("LAST"); }));
}

void remove_data(const Input& input) {
    InputEditor editor{document(input)};
    require(measured([&] { return editor.remove_section("DATA"); }));
}

void render_last(const Input& input) {
    const InputEditor editor{document(input)};
    require(!measured([&] { return editor.render_section("LAST"); }).empty());
}

constexpr Shape different{"", " $G% A=1 $END\n", " $LAST A=1 $END\n"};
constexpr Shape alike{"", " $SCF A=1 $END\n", " $LAST A=1 $END\n"};
constexpr Shape copies{"", " $LAST A=1 $END\n"};

constexpr auto families = std::to_array<Family>({
    {"list the names of n groups", different, list_names, things},
    {"list the name of n groups", copies, list_names, things},
    {"write n groups", different, write, things},
    {"write n groups of one name", copies, write, things},
    {"write n groups of a structured name", alike, write, things},
    {"write n keywords", {" $FORCE\n", " K%=1\n", " $END\n"}, write, things},
    {"write n keywords of a structured group", {" $CONTRL\n", " K%=1\n", " $END\n"}, write, things},
    {"write n raw lines", {" $VEC\n", " 1 1.0E+00\n", " $END\n"}, write, swift_things},
    {"write n atoms", {" $DATA\nt\nC1\n", "H 1.0 0.0 0.0 %.0\n", " $END\n"}, write, things},
    {"write n atoms with numbers of many digits",
     {" $DATA\nt\nC1\n", "H 1.5 1.0E300 -1.0E300 1.0E308\n", " $END\n"},
     write,
     things},
    {"write n lines of $DATA", {" $DATA\nt\nC1\n", "x\n", " $END\n"}, write, words},
    {"write a value of n bytes", {" $FORCE A=", "x", " $END\n"}, write, swift_bytes},
    {"find one of n groups", different, find_last, things},
    {"find a group behind n of one name", alike, find_last, things},
    {"find one of n groups by a name behind n blanks", different, find_by_long_name, things},
    {"find or add a group to n others", different, upsert, things},
    {"make sure of a group among n others", different, ensure, things},
    {"make sure of a structured group among n others", different, ensure_structured, things},
    {"remove one of n groups", different, remove_last, things},
    {"remove n groups of one name", copies, remove_last, things},
    {"remove n atoms", {" $DATA\nt\nC1\n", "H 1.0 0.0 0.0 %.0\n", " $END\n"}, remove_data, things},
    {"render one of n groups", different, render_last, things},
    {"render a group of n keywords", {" $LAST\n", " K%=1\n", " $END\n"}, render_last, things},
});

}  // namespace

std::span<const Family> group_families() noexcept { return families; }

}  // namespace nurl::bench::growth
