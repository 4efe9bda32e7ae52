#include <string>

#include <doctest/doctest.h>

#include "nurl/input/gamess/editor.hpp"
#include "nurl/input/gamess/reader.hpp"
#include "support/groups.hpp"
#include "support/show_model.hpp"
#include "support/structured_values.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::InputEditor;
using nurl::input::gamess::parse_string;
using nurl::test::deck_of;
using nurl::test::deck_with;
using nurl::test::extra_of;
using nurl::test::group;
using nurl::test::Groups;
using nurl::test::structured_groups;
using nurl::test::structured_values;
using nurl::test::StructuredValue;

namespace {

/// A document after making sure of a group.
GamessInput ensured(const GamessInput& deck, std::string_view name) {
    InputEditor editor{deck};
    editor.ensure_section(name);
    return std::move(editor).take();
}

}  // namespace

TEST_CASE("An absent structured group is engaged empty, with a place among the groups read") {
    for (const auto name : structured_groups) {
        CAPTURE(name);
        GamessInput expected = deck_with(name);
        expected.sections = {group(std::string{name})};
        CHECK(ensured({}, name) == expected);
        CHECK(ensured({}, "\t$" + std::string{name} + " \r\n") == expected);
        CHECK(InputEditor{expected}.has_section(name));
    }
}

TEST_CASE("A structured group that is there keeps its record and gets a place") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        GamessInput deck = deck_with(row.group);
        row.put(deck);
        extra_of(deck, row.group) = {{"OTHER", "1"}};
        GamessInput expected = deck;
        expected.sections = {group(std::string{row.group})};
        CHECK(ensured(deck, row.group) == expected);
    }
}

TEST_CASE("$CONTRL that did not belong to the deck comes back with the values of its record") {
    GamessInput deck = deck_of({group("X")});
    deck.control.has_mult = true;
    deck.control.mult = 3;
    deck.control.extra = {{"OTHER", "1"}};
    GamessInput expected = deck;
    expected.has_control = true;
    expected.sections.push_back(group("CONTRL"));
    CHECK(ensured(deck, "contrl") == expected);
}

TEST_CASE("The place of a structured group is behind the groups read") {
    const GamessInput deck = deck_of({group("B"), group("A")});
    CHECK(ensured(deck, "SCF").sections == Groups{group("B"), group("A"), group("SCF")});
}

TEST_CASE("A structured group that has a place keeps it, however its name is spelled") {
    for (const char* spelled : {"SCF", "scf", " $Scf ", "$SCF\r"}) {
        CAPTURE(spelled);
        const GamessInput deck = deck_of({group("A"), group(spelled, {{"K", "1"}}), group("B")});
        CHECK(ensured(deck, "SCF").sections == deck.sections);
        CHECK(ensured(deck, "SCF").scf.has_value());
    }
}

TEST_CASE("A group added in code is no place for a structured group") {
    GamessInput deck;
    deck.extra_sections = {group("SCF")};
    const GamessInput after = ensured(deck, "SCF");
    CHECK(after.sections == Groups{group("SCF")});
    CHECK(after.extra_sections == deck.extra_sections);
}

TEST_CASE("An empty structured group is not written until it holds a keyword") {
    InputEditor editor{parse_string("$PCM A=1 $END\n$DATA\nt\nC1\n$END\n").input};
    const std::string before = editor.input().to_string();
    editor.ensure_section("SCF");
    CHECK(editor.has_section("SCF"));
    CHECK(editor.input().to_string() == before);
    editor.ensure_section("TDDFT");
    editor.set_keyword("SCF", "DIIS", "T");
    CHECK(editor.input().to_string().starts_with(
        " $PCM A=1 $END\n $SCF DIIS=.T. $END\n $TDDFT $END\n $DATA\n"));
}

TEST_CASE("A new generic group joins the groups read when there are any") {
    GamessInput deck = deck_of({group("B")});
    deck.extra_sections = {group("E")};
    const GamessInput after = ensured(deck, " $tddft ");
    CHECK(after.sections == Groups{group("B"), group("TDDFT")});
    CHECK(after.extra_sections == deck.extra_sections);
}

TEST_CASE("A new generic group joins the groups added in code when none was read") {
    GamessInput deck;
    deck.extra_sections = {group("E")};
    const GamessInput after = ensured(deck, " $tddft ");
    CHECK(after.sections.empty());
    CHECK(after.extra_sections == Groups{group("E"), group("TDDFT")});
}

TEST_CASE("The place of a structured group counts as a group read") {
    const GamessInput after = ensured(ensured({}, "SCF"), "TDDFT");
    CHECK(after.sections == Groups{group("SCF"), group("TDDFT")});
    CHECK(after.extra_sections.empty());
}

TEST_CASE("A generic group that is there is left as it is, in either list") {
    GamessInput deck = deck_of({group(" $pcm", {{"a", " 1"}}, {" raw "})});
    deck.extra_sections = {group("force", {{"b", "2"}})};
    for (const char* name : {"PCM", "$pcm", "FORCE", " Force\n"}) {
        CAPTURE(name);
        CHECK(ensured(deck, name) == deck);
    }
}

TEST_CASE("A blank name does nothing") {
    for (const char* name : {"", " ", "\t\r\n", "$", " $ "}) {
        CAPTURE(name);
        CHECK(ensured({}, name) == GamessInput{});
        CHECK(ensured(deck_of({group("X")}), name) == deck_of({group("X")}));
    }
}

TEST_CASE("$DATA cannot be made") {
    for (const char* name : {"DATA", "data", " $Data "}) {
        CAPTURE(name);
        CHECK(ensured({}, name) == GamessInput{});
        CHECK(ensured(deck_of({group("X")}), name) == deck_of({group("X")}));
    }
}

TEST_CASE("A group without a name is the group SECTION") {
    CHECK(ensured(deck_of({group("")}), "SECTION") == deck_of({group("")}));
    CHECK(ensured(deck_of({group("X")}), "section").sections ==
          Groups{group("X"), group("SECTION")});
}

TEST_CASE("A vertical tab stays in the name of a new group") {
    CHECK(ensured({}, " \vnew ").extra_sections == Groups{group("\vNEW")});
    CHECK(ensured({}, "\vSCF").extra_sections == Groups{group("\vSCF")});
    CHECK_FALSE(ensured({}, "\vSCF").scf.has_value());
}
