#include <string>
#include <vector>

#include <doctest/doctest.h>

#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "support/groups.hpp"
#include "support/show_model.hpp"
#include "support/structured_values.hpp"

using nurl::input::gamess::AtomRecord;
using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::input::gamess::parse_string;
using nurl::test::add_structured;
using nurl::test::deck_of;
using nurl::test::deck_with;
using nurl::test::group;
using nurl::test::structured_groups;
using Names = std::vector<std::string>;

namespace {

Names names_of(const GamessInput& deck) { return InputEditor{deck}.section_names(); }

GamessInput with_five_groups(GamessInput deck) {
    for (const auto name : structured_groups) add_structured(deck, name);
    return deck;
}

}  // namespace

TEST_CASE("An empty document has no names") { CHECK(names_of({}).empty()); }

TEST_CASE("A document of atoms has the one name DATA") {
    GamessInput deck;
    deck.atoms.push_back(AtomRecord{});
    CHECK(names_of(deck) == Names{"DATA"});
}

TEST_CASE("Names stand in the order of writing") {
    GamessInput deck = with_five_groups(
        deck_of({group("B"), group("GUESS"), group("A"), group("BASIS"), group("C")}));
    deck.extra_sections = {group("E"), group("D")};
    deck.title = "water";
    CHECK(names_of(deck) ==
          Names{"B", "GUESS", "A", "BASIS", "C", "CONTRL", "SYSTEM", "SCF", "E", "D", "DATA"});
}

TEST_CASE("Structured groups that were never read come in a fixed order") {
    CHECK(names_of(with_five_groups({})) == Names{"CONTRL", "SYSTEM", "BASIS", "SCF", "GUESS"});
}

TEST_CASE("A structured group is listed when it is present, also when it is empty") {
    for (const auto name : structured_groups) {
        CAPTURE(name);
        CHECK(names_of(deck_with(name)) == Names{std::string{name}});
    }
}

TEST_CASE("A structured group that is absent is not listed for its copy") {
    for (const auto name : structured_groups) {
        CAPTURE(name);
        CHECK(names_of(deck_of({group("A"), group(std::string{name}, {{"K", "1"}}), group("B")})) ==
              Names{"A", "B"});
    }
}

TEST_CASE("$DATA read first is listed last") {
    CHECK(names_of(parse_string("$DATA\nt\nC1\n$END\n$X $END\n").input) == Names{"X", "DATA"});
}

TEST_CASE("Each name is listed once, at its first place") {
    GamessInput deck = with_five_groups(
        deck_of({group("A"), group("SCF"), group(" $a "), group("scf"), group("B"), group("A")}));
    deck.extra_sections = {group("C"), group("b"), group("c"), group("SCF")};
    CHECK(names_of(deck) == Names{"A", "SCF", "B", "CONTRL", "SYSTEM", "BASIS", "GUESS", "C"});
}

TEST_CASE("Names are in upper case, trimmed and without one dollar") {
    CHECK(names_of(deck_of({group(" $pcm\t"), group("$$x"), group("\vmine")})) ==
          Names{"PCM", "$X", "\vMINE"});
}

TEST_CASE("A group without a name is listed without one") {
    CHECK(names_of(deck_of({group(" $ "), group("X")})) == Names{"", "X"});
}

TEST_CASE("A group added in code is listed whatever its name") {
    GamessInput deck;
    deck.extra_sections = {group("CONTRL"), group("X"), group("data")};
    CHECK(names_of(deck) == Names{"CONTRL", "X", "DATA"});
    deck.has_control = deck.has_data = true;
    CHECK(names_of(deck) == Names{"CONTRL", "X", "DATA"});
    deck.extra_sections = {group("X"), group("CONTRL")};
    CHECK(names_of(deck) == Names{"CONTRL", "X", "DATA"});
}
