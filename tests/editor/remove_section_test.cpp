#include <string>

#include <doctest/doctest.h>

#include "editor/edit_result.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "support/groups.hpp"
#include "support/show_model.hpp"
#include "support/structured_values.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::test::add_structured;
using nurl::test::after_remove;
using nurl::test::deck_of;
using nurl::test::EditResult;
using nurl::test::extra_of;
using nurl::test::group;
using nurl::test::structured_groups;
using nurl::test::structured_values;
using nurl::test::StructuredValue;

namespace {

/// Every structured group with all its keywords, some generic groups and a molecule.
GamessInput full_deck() {
    GamessInput deck = deck_of({group("A"), group("SCF", {{"K", "1"}}), group("B"), group("$scf")});
    for (const auto name : structured_groups) add_structured(deck, name);
    for (const StructuredValue& row : structured_values()) {
        row.put(deck);
        extra_of(deck, row.group) = {{"OTHER", "1"}};
    }
    deck.extra_sections = {group("C"), group(" Scf "), group("D")};
    deck.has_data = true;
    deck.title = "water";
    deck.point_group = "CNV 2";
    deck.atoms = {{"O", 8.0, 1.0, 2.0, 3.0}};
    deck.data_lines = {"N31 6"};
    return deck;
}

}  // namespace

TEST_CASE("Removing a blank name gives false and changes nothing") {
    for (const char* name : {"", " ", "\t\r\n", "$", " $ "}) {
        CAPTURE(name);
        CHECK(after_remove(full_deck(), name) == EditResult{false, full_deck()});
        const GamessInput nameless = deck_of({group(""), group("SECTION")});
        CHECK(after_remove(nameless, name) == EditResult{false, nameless});
    }
}

TEST_CASE("Removing $DATA empties all of it and touches nothing else") {
    GamessInput expected = full_deck();
    expected.sections.push_back(group("DATA"));
    const GamessInput deck = expected;
    expected.has_data = false;
    expected.title.clear();
    expected.point_group.clear();
    expected.atoms.clear();
    expected.data_lines.clear();
    for (const char* name : {"DATA", " $data\n"}) {
        CAPTURE(name);
        CHECK(after_remove(deck, name) == EditResult{true, expected});
        CHECK(after_remove(expected, name) == EditResult{false, expected});
    }
}

TEST_CASE("Removing $DATA tells whether any of its parts was there") {
    GamessInput marked;
    marked.has_data = true;
    GamessInput titled;
    titled.title = "\v";
    GamessInput grouped;
    grouped.point_group = "C1";
    GamessInput with_line;
    with_line.data_lines = {""};
    for (const GamessInput& deck : {marked, titled, grouped, with_line})
        CHECK(after_remove(deck, "DATA") == EditResult{true, GamessInput{}});
}

TEST_CASE("Removing $DATA that holds only blanks gives false and empties it") {
    GamessInput deck;
    deck.title = deck.point_group = " \t";
    CHECK(after_remove(deck, "DATA") == EditResult{false, GamessInput{}});
}

TEST_CASE("Removing $CONTRL clears its mark and keeps its values") {
    GamessInput expected = full_deck();
    expected.has_control = false;
    CHECK(after_remove(full_deck(), " $contrl ") == EditResult{true, expected});
    CHECK(after_remove(expected, "CONTRL") == EditResult{false, expected});
}

TEST_CASE("Removing another structured group drops its record") {
    for (const auto name : structured_groups) {
        if (name == "CONTRL") continue;
        CAPTURE(name);
        const EditResult removal = after_remove(full_deck(), name);
        CHECK(removal.result);
        CHECK_FALSE(InputEditor{removal.deck}.has_section(name));
        CHECK(after_remove(removal.deck, name) == EditResult{false, removal.deck});
        InputEditor again{removal.deck};
        again.ensure_section(name);
        CHECK(again.list_keywords(name).empty());
    }
}

TEST_CASE("Removing a structured group leaves the other records") {
    GamessInput expected = full_deck();
    expected.system.reset();
    CHECK(after_remove(full_deck(), "SYSTEM") == EditResult{true, expected});
    expected.basis.reset();
    CHECK(after_remove(after_remove(full_deck(), "SYSTEM").deck, "BASIS") ==
          EditResult{true, expected});
    expected.guess.reset();
    CHECK(after_remove(after_remove(after_remove(full_deck(), "SYSTEM").deck, "BASIS").deck,
                       "$guess") == EditResult{true, expected});
}

TEST_CASE("Removing a structured group erases its copies from both lists") {
    GamessInput expected = full_deck();
    expected.scf.reset();
    expected.sections = {group("A"), group("B")};
    expected.extra_sections = {group("C"), group("D")};
    CHECK(after_remove(full_deck(), "scf") == EditResult{true, expected});
}

TEST_CASE("Removing an absent structured group gives false and still erases its copies") {
    for (const auto name : structured_groups) {
        CAPTURE(name);
        GamessInput deck = deck_of({group(std::string{name}, {{"K", "1"}}), group("X")});
        deck.extra_sections = {group(std::string{name})};
        CHECK(after_remove(deck, name) == EditResult{false, deck_of({group("X")})});
    }
}

TEST_CASE("Removing a generic group erases all its copies from both lists") {
    GamessInput deck = full_deck();
    deck.sections.push_back(group(" $x"));
    deck.sections.insert(deck.sections.begin(), group("X", {{"K", "1"}}, {"raw"}));
    deck.extra_sections.push_back(group("x"));
    for (const char* name : {"X", "$x", "\tx\r\n"}) {
        CAPTURE(name);
        CHECK(after_remove(deck, name) == EditResult{true, full_deck()});
    }
}

TEST_CASE("Removing a generic group finds it in either list") {
    GamessInput deck;
    deck.extra_sections = {group("X")};
    CHECK(after_remove(deck, "X") == EditResult{true, GamessInput{}});
    CHECK(after_remove(deck_of({group("X")}), "X") == EditResult{true, GamessInput{}});
}

TEST_CASE("Removing a generic group that is not there gives false and changes nothing") {
    CHECK(after_remove(full_deck(), "NONE") == EditResult{false, full_deck()});
    CHECK(after_remove({}, "NONE") == EditResult{false, GamessInput{}});
}
