#include <string>
#include <string_view>

#include <doctest/doctest.h>

#include "nurl/input/gamess/model.hpp"
#include "support/structured_values.hpp"

using nurl::input::gamess::GamessInput;
using nurl::input::gamess::Units;
using nurl::test::add_structured;
using nurl::test::deck_with;
using nurl::test::extra_of;
using nurl::test::structured_groups;
using nurl::test::structured_values;
using nurl::test::StructuredValue;

namespace {

std::string block(std::string_view group, std::string_view entries) {
    return " $" + std::string{group} + " " + std::string{entries} + " $END\n";
}

/// A deck with the first value of every keyword, set in the reverse order.
GamessInput full_deck() {
    GamessInput deck;
    for (const std::string_view group : structured_groups) add_structured(deck, group);
    const auto rows = structured_values();
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) row->put(deck);
    return deck;
}

}  // namespace

TEST_CASE("Every keyword with a member is written alone when only it is given") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        CAPTURE(row.written);
        GamessInput deck = deck_with(row.group);
        row.put(deck);
        CHECK(deck.to_string() ==
              block(row.group, std::string{row.keyword} + '=' + std::string{row.written}));
    }
}

TEST_CASE("All keywords of the structured groups are written in a fixed order") {
    CHECK(full_deck().to_string() ==
          " $CONTRL SCFTYP=UHF RUNTYP=OPTIMIZE ICHARG=-2 MULT=3 COORD=UNIQUE UNITS=BOHR NOSYM=1"
          " MAXIT=100 ISPHER=-1 EXETYP=CHECK DFTTYP=B3LYP CITYP=ALDET TDDFT=EXCITE"
          " RELWFN=LUT-IOTC PP=MCP $END\n"
          " $SYSTEM MWORDS=250 MEMDDI=2147483647 $END\n"
          " $BASIS GBASIS=N31 NGAUSS=6 NDFUNC=2 NPFUNC=1 NFFUNC=0 DIFFS=.T. DIFFSP=.T. $END\n"
          " $SCF DIRSCF=.T. DIIS=.T. SOSCF=.T. FDIFF=.T. MOM=.T. $END\n"
          " $GUESS GUESS=HUCKEL NORB=-2147483648 $END\n");
}

TEST_CASE("A structured group that is absent or holds nothing is not written") {
    CHECK(GamessInput{}.to_string().empty());
    for (const std::string_view group : structured_groups) {
        CAPTURE(group);
        CHECK(deck_with(group).to_string().empty());
    }
}

TEST_CASE("$CONTRL is written only when it belongs to the deck") {
    GamessInput deck = full_deck();
    deck.has_control = false;
    deck.control.extra = {{"LOCAL", "BOYS"}};
    CHECK(deck.to_string().starts_with(" $SYSTEM "));
}

TEST_CASE("Values of $CONTRL are written only when their flags are set") {
    GamessInput deck = deck_with("CONTRL");
    deck.control.scftyp = "UHF";
    deck.control.runtyp = "OPTIMIZE";
    deck.control.icharg = 1;
    deck.control.mult = 2;
    deck.control.coord = "UNIQUE";
    deck.control.units = Units::Bohr;
    deck.control.nosym = true;
    deck.control.reserved = true;
    CHECK(deck.to_string().empty());
}

TEST_CASE("Flagged defaults of $CONTRL are written") {
    GamessInput deck = deck_with("CONTRL");
    deck.control.has_scftyp = deck.control.has_runtyp = deck.control.has_icharg = true;
    deck.control.has_mult = deck.control.has_coord = deck.control.has_units = true;
    deck.control.has_nosym = true;
    CHECK(deck.to_string() ==
          block("CONTRL", "SCFTYP=RHF RUNTYP=ENERGY ICHARG=0 MULT=1 UNITS=ANGS NOSYM=0"));
}

TEST_CASE("A unit outside the enumeration is written as angstrom in $CONTRL") {
    GamessInput deck = deck_with("CONTRL");
    deck.control.has_units = true;
    deck.control.units = static_cast<Units>(7);
    CHECK(deck.to_string() == block("CONTRL", "UNITS=ANGS"));
}

TEST_CASE("Texts are trimmed and in upper case") {
    const std::string text = " \t\v mixed Case\f\r\n ";
    GamessInput deck;
    for (const std::string_view group : structured_groups) add_structured(deck, group);
    deck.control.has_scftyp = deck.control.has_runtyp = deck.control.has_coord = true;
    deck.control.scftyp = deck.control.runtyp = deck.control.coord = text;
    deck.control.exetyp = deck.control.dfttyp = deck.control.cityp = text;
    deck.control.tddft = deck.control.relwfn = deck.control.pp = text;
    deck.basis->gbasis = deck.guess->guess = text;
    CHECK(deck.to_string() ==
          " $CONTRL SCFTYP=MIXED CASE RUNTYP=MIXED CASE COORD=MIXED CASE EXETYP=MIXED CASE"
          " DFTTYP=MIXED CASE CITYP=MIXED CASE TDDFT=MIXED CASE RELWFN=MIXED CASE PP=MIXED CASE"
          " $END\n"
          " $BASIS GBASIS=MIXED CASE $END\n"
          " $GUESS GUESS=MIXED CASE $END\n");
}

TEST_CASE("Blank texts are dropped, and a group left without entries with them") {
    for (const char* blank : {"", " ", "\t\n\v\f\r "}) {
        GamessInput deck;
        for (const std::string_view group : structured_groups) add_structured(deck, group);
        deck.control.has_scftyp = deck.control.has_runtyp = deck.control.has_coord = true;
        deck.control.scftyp = deck.control.runtyp = deck.control.coord = blank;
        deck.control.exetyp = deck.control.dfttyp = deck.control.cityp = blank;
        deck.control.tddft = deck.control.relwfn = deck.control.pp = blank;
        deck.basis->gbasis = deck.guess->guess = blank;
        CHECK(deck.to_string().empty());
    }
}

TEST_CASE("Further entries stand behind the members, case of values kept") {
    for (const StructuredValue& row : structured_values()) {
        CAPTURE(row.keyword);
        GamessInput deck = deck_with(row.group);
        row.put(deck);
        extra_of(deck, row.group) = {{" local\v", " Boys "}, {"A(1)", "two  words"}};
        CHECK(deck.to_string() ==
              block(row.group, std::string{row.keyword} + '=' + std::string{row.written} +
                                   " LOCAL=Boys A(1)=two  words"));
    }
}

TEST_CASE("Further entries are written alone, repeated and under the name of a member") {
    for (const std::string_view group : structured_groups) {
        CAPTURE(group);
        GamessInput deck = deck_with(group);
        extra_of(deck, group) = {{"mult", "abc"}, {"X", "1"}, {"MULT", "x y"}, {"x", "1"}};
        CHECK(deck.to_string() == block(group, "MULT=abc X=1 MULT=x y X=1"));
    }
}

TEST_CASE("Further entries with a blank key or a blank value are dropped") {
    for (const std::string_view group : structured_groups) {
        CAPTURE(group);
        GamessInput deck = deck_with(group);
        extra_of(deck, group) = {{"", "1"}, {"\v", "2"}, {"A", "\f "}};
        CHECK(deck.to_string().empty());
        extra_of(deck, group).push_back({"B", "3"});
        CHECK(deck.to_string() == block(group, "B=3"));
    }
}
