#include <array>
#include <string>

#include <doctest/doctest.h>

#include "editor/edit_result.hpp"
#include "nurl/input/gamess/editor.hpp"
#include "support/groups.hpp"
#include "support/show_model.hpp"
#include "support/structured_values.hpp"

using nurl::input::gamess::ControlSection;
using nurl::input::gamess::GamessInput;
using nurl::test::after_remove;
using nurl::test::deck_of;
using nurl::test::deck_with;
using nurl::test::EditResult;
using nurl::test::extra_of;
using nurl::test::group;
using nurl::test::structured_groups;
using nurl::test::structured_values;
using nurl::test::StructuredValue;

namespace {

struct FlaggedKeyword {
    std::string_view keyword;
    bool ControlSection::*given;
};

/// The keywords of $CONTRL whose value stays behind when they are removed.
constexpr std::array<FlaggedKeyword, 6> value_stays{{{"SCFTYP", &ControlSection::has_scftyp},
                                                     {"RUNTYP", &ControlSection::has_runtyp},
                                                     {"ICHARG", &ControlSection::has_icharg},
                                                     {"MULT", &ControlSection::has_mult},
                                                     {"UNITS", &ControlSection::has_units},
                                                     {"NOSYM", &ControlSection::has_nosym}}};

/// The deck of one row after its keyword is removed; `before` is the deck without the row.
GamessInput cleared(GamessInput before, const StructuredValue& row) {
    if (row.group != "CONTRL") return before;
    for (const FlaggedKeyword& flagged : value_stays) {
        if (row.keyword != flagged.keyword) continue;
        row.put(before);
        before.control.*flagged.given = false;
    }
    return before;
}

/// A deck with one structured group that has further entries.
GamessInput deck_with_extra(std::string_view name) {
    GamessInput deck = deck_with(name);
    extra_of(deck, name) = {{"A", "1"}, {"LOCAL", "2"}, {"B", "3"}, {" local\t", "4"}};
    return deck;
}

}  // namespace

TEST_CASE("Removing a keyword clears its member") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        CAPTURE(row.given);
        const GamessInput before = deck_with_extra(row.group);
        GamessInput deck = before;
        row.put(deck);
        const std::string spelled = '\t' + std::string{row.keyword} + " \r\n";
        CHECK(after_remove(deck, row.group, spelled) == EditResult{true, cleared(before, row)});
    }
}

TEST_CASE("Removing COORD empties its text, removing SCFTYP keeps it") {
    GamessInput deck = deck_with("CONTRL");
    deck.control.has_coord = deck.control.has_scftyp = true;
    deck.control.coord = "UNIQUE";
    deck.control.scftyp = "UHF";
    const GamessInput without_coord = after_remove(deck, "CONTRL", "COORD").deck;
    CHECK_FALSE(without_coord.control.has_coord);
    CHECK(without_coord.control.coord.empty());
    const GamessInput without_scftyp = after_remove(deck, "CONTRL", "SCFTYP").deck;
    CHECK_FALSE(without_scftyp.control.has_scftyp);
    CHECK(without_scftyp.control.scftyp == "UHF");
}

TEST_CASE("Further entries of a keyword survive when its member is cleared, and go next") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        const std::string keyword{row.keyword};
        GamessInput before = deck_with(row.group);
        extra_of(before, row.group) = {{keyword, "x"}, {"A", "1"}, {' ' + keyword, "y"}};
        GamessInput deck = before;
        row.put(deck);
        const EditResult first = after_remove(deck, row.group, keyword);
        CHECK(first == EditResult{true, cleared(before, row)});
        GamessInput expected = first.deck;
        extra_of(expected, row.group) = {{"A", "1"}};
        CHECK(after_remove(first.deck, row.group, keyword) == EditResult{true, expected});
        CHECK(after_remove(expected, row.group, keyword) == EditResult{false, expected});
    }
}

TEST_CASE("A value of $CONTRL without its flag is no value to clear") {
    GamessInput deck = deck_with("CONTRL");
    deck.control.scftyp = "UHF";
    deck.control.coord = "UNIQUE";
    deck.control.nosym = true;
    for (const char* key : {"SCFTYP", "COORD", "NOSYM"})
        CHECK(after_remove(deck, "CONTRL", key) == EditResult{false, deck});
}

TEST_CASE("A blank text of a member is a value to clear") {
    GamessInput deck = deck_with("GUESS");
    deck.guess->guess = "";
    CHECK(after_remove(deck, "GUESS", "GUESS") == EditResult{true, deck_with("GUESS")});
}

TEST_CASE("Removing a keyword without a member removes all its further entries") {
    for (const auto name : structured_groups) {
        CAPTURE(name);
        GamessInput expected = deck_with(name);
        extra_of(expected, name) = {{"A", "1"}, {"B", "3"}};
        CHECK(after_remove(deck_with_extra(name), name, "Local") == EditResult{true, expected});
        CHECK(after_remove(expected, name, "LOCAL") == EditResult{false, expected});
    }
}

TEST_CASE("Nothing is removed from a structured group that is absent") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        const GamessInput deck =
            deck_of({group(std::string{row.group}, {{std::string{row.keyword}, "1"}}, {"  r "})});
        CHECK(after_remove(deck, row.group, row.keyword) == EditResult{false, deck});
    }
}

TEST_CASE("The record of $CONTRL can be edited while the group is absent") {
    GamessInput deck;
    deck.control.has_mult = true;
    deck.control.extra = {{"LOCAL", "1"}};
    GamessInput expected = deck;
    expected.control.has_mult = false;
    CHECK(after_remove(deck, "CONTRL", "MULT") == EditResult{true, expected});
    expected = deck;
    expected.control.extra.clear();
    CHECK(after_remove(deck, "CONTRL", "LOCAL") == EditResult{true, expected});
}

TEST_CASE("The copy of a structured group and its place stay") {
    GamessInput deck = deck_of({group("SCF", {{"DIIS", "1"}}, {"DIIS=1"}), group("X")});
    deck.scf.emplace();
    GamessInput expected = deck;
    deck.scf->diis = true;
    CHECK(after_remove(deck, "SCF", "DIIS") == EditResult{true, expected});
}

TEST_CASE("Removing a keyword of a generic group removes every entry of it") {
    const GamessInput deck =
        deck_of({group("A", {{"K", "0"}}),
                 group("X", {{"k", "1"}, {"A", "2"}, {" K\n", "3"}, {"KK", "4"}})});
    GamessInput expected = deck;
    expected.sections[1].entries = {{"A", "2"}, {"KK", "4"}};
    CHECK(after_remove(deck, " $x ", "\tk") == EditResult{true, expected});
}

TEST_CASE("Removing a keyword of a generic group cuts it out of the raw lines and keeps them all") {
    const GamessInput deck =
        deck_of({group("X", {{"A", "1"}}, {"K=1", "", "  a\t b ", "text  K=2   B=3", "\v"})});
    GamessInput expected = deck;
    expected.sections[0].raw_lines = {"", "", "a\t b", "text B=3", "\v"};
    CHECK(after_remove(deck, "X", "K") == EditResult{true, expected});
}

TEST_CASE("Removing from entries and raw lines at once is one removal") {
    const GamessInput deck = deck_of({group("X", {{"K", "1"}}, {"K=2", "rest"})});
    const GamessInput expected = deck_of({group("X", {}, {"", "rest"})});
    CHECK(after_remove(deck, "X", "K") == EditResult{true, expected});
    CHECK(after_remove(expected, "X", "K") == EditResult{false, expected});
}

TEST_CASE("Removing a keyword that a generic group lacks gives false and tidies its raw lines") {
    const GamessInput deck = deck_of({group("X", {{"A", "1"}}, {" a  b ", " B=1   C=2", ""})});
    GamessInput expected = deck;
    expected.sections[0].raw_lines = {"a  b", "B=1 C=2", ""};
    CHECK(after_remove(deck, "X", "K") == EditResult{false, expected});
}

TEST_CASE("Only the first group of a name loses its keyword, read groups before added ones") {
    GamessInput deck = deck_of({group("X", {{"K", "1"}}), group("x", {{"K", "2"}})});
    deck.extra_sections = {group("X", {{"K", "3"}}), group("Y", {{"K", "4"}})};
    GamessInput expected = deck;
    expected.sections[0].entries.clear();
    CHECK(after_remove(deck, "X", "K") == EditResult{true, expected});
    CHECK(after_remove(expected, "X", "K") == EditResult{false, expected});
    expected.extra_sections[1].entries.clear();
    CHECK(after_remove(expected, "Y", "K") == EditResult{false, expected});
}

TEST_CASE("Nothing is removed from $DATA, a missing group or under a blank name") {
    GamessInput deck = deck_of({group("DATA", {{"K", "1"}}), group("", {{"K", "1"}}, {" r ", ""})});
    deck.title = "K=1";
    deck.data_lines = {"K=1"};
    for (const char* name : {"DATA", "$data", "", " ", "$", "NONE"}) {
        CAPTURE(name);
        CHECK(after_remove(deck, name, "K") == EditResult{false, deck});
    }
    for (const char* key : {"", " \t\r\n"})
        CHECK(after_remove(deck, "SECTION", key) == EditResult{false, deck});
}

TEST_CASE("A keyword is removed from a group without a name as from SECTION") {
    const GamessInput deck = deck_of({group("", {{"K", "1"}})});
    CHECK(after_remove(deck, "section", "K") == EditResult{true, deck_of({group("")})});
}
