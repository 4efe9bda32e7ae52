// Lifting of whole groups: further entries, repeated keywords, second copies, raw lines.
#include <optional>
#include <string>

#include <doctest/doctest.h>

#include "reader/reading.hpp"

using namespace nurl::input::gamess;
using namespace nurl::test;

TEST_CASE("A structured group without content is present and empty") {
    const GamessInput deck = read_silently(
        "$CONTRL $END\n$SYSTEM $END\n$BASIS $END\n$SCF $END\n"
        "$guess $end\n");
    CHECK(deck.has_control);
    CHECK(deck.control == ControlSection{});
    CHECK(deck.system == SystemSection{});
    CHECK(deck.basis == BasisSection{});
    CHECK(deck.scf == ScfSection{});
    CHECK(deck.guess == GuessSection{});
    CHECK(deck.sections.size() == 5);
}

TEST_CASE("Groups that are not read have no record") {
    const GamessInput deck = read_silently("$PCM SCFTYP=UHF DIIS=.T. $END");
    GamessInput expected;
    expected.sections = {{"PCM", {{"SCFTYP", "UHF"}, {"DIIS", ".T."}}, {}}};
    CHECK(deck == expected);
}

TEST_CASE("Only the exact names are lifted") {
    for (const std::string name : {"CONTRL2", "CONTROL", "SCF(1)", "XGUESS", "SYS"}) {
        CAPTURE(name);
        GamessInput expected;
        expected.sections = {{name, {{"MULT", "2"}}, {}}};
        CHECK(read_silently("$" + name + " MULT=2 $END") == expected);
    }
}

TEST_CASE("Keywords without a member are kept in order with those that do not convert") {
    const GamessInput deck =
        read_silently("$CONTRL NPRINT=-5 ICHARG=abc scftyp=UHF Local=boys\n MULT=x $END");
    CHECK(deck.control.extra ==
          Entries{{"NPRINT", "-5"}, {"ICHARG", "abc"}, {"LOCAL", "boys"}, {"MULT", "x"}});
    CHECK(deck.control.scftyp == "UHF");
    CHECK(deck.control.mult == 1);
}

TEST_CASE("Each structured group keeps keywords without a member") {
    const GamessInput deck = read_silently(
        "$SYSTEM MWORDS=50 TIMLIM=10 $END\n$BASIS POLAR=popn31 $END\n$SCF NCONV=8 $END\n"
        "$GUESS MIX=.T. $END\n");
    CHECK(deck.system == SystemSection{50, std::nullopt, {{"TIMLIM", "10"}}});
    CHECK(deck.basis->extra == Entries{{"POLAR", "popn31"}});
    CHECK(deck.scf->extra == Entries{{"NCONV", "8"}});
    CHECK(deck.guess->extra == Entries{{"MIX", ".T."}});
}

TEST_CASE("A keyword belongs to its own group alone") {
    const GamessInput deck = read_silently("$SCF SCFTYP=UHF NORB=3 $END\n$GUESS DIIS=.T. $END\n");
    CHECK(deck.scf == ScfSection{{}, {}, {}, {}, {}, {{"SCFTYP", "UHF"}, {"NORB", "3"}}});
    CHECK(deck.guess == GuessSection{{}, {}, {{"DIIS", ".T."}}});
    CHECK_FALSE(deck.has_control);
}

TEST_CASE("A keyword with an index is another keyword") {
    const GamessInput deck = read_silently("$CONTRL MULT(1)=2 $END");
    CHECK_FALSE(deck.control.has_mult);
    CHECK(deck.control.extra == Entries{{"MULT(1)", "2"}});
}

TEST_CASE("Of a keyword given twice the last value that converts holds") {
    const GamessInput deck = read_silently(
        "$CONTRL ICHARG=1 ICHARG=abc ICHARG=2 ICHARG=x SCFTYP=UHF SCFTYP=ROHF $END\n"
        "$SCF DIIS=.T. DIIS=.F. DIIS=maybe $END");
    CHECK(deck.control.icharg == 2);
    CHECK(deck.control.has_icharg);
    CHECK(deck.control.scftyp == "ROHF");
    CHECK(deck.control.extra == Entries{{"ICHARG", "abc"}, {"ICHARG", "x"}});
    CHECK(deck.scf->diis == false);
    CHECK(deck.scf->extra == Entries{{"DIIS", "maybe"}});
    CHECK(deck.sections[0].entries.size() == 6);
}

TEST_CASE("A second copy of CONTRL is lifted into the record already there") {
    const GamessInput deck = read_silently(
        "$CONTRL SCFTYP=UHF MULT=2 NPRINT=7 MAXIT=50 $END\n"
        "$CONTRL MULT=3 MAXIT=x NPRINT=9 $END\n");
    CHECK(deck.control.scftyp == "UHF");
    CHECK(deck.control.mult == 3);
    CHECK(deck.control.maxit == 50);
    CHECK(deck.control.extra == Entries{{"NPRINT", "7"}, {"MAXIT", "x"}, {"NPRINT", "9"}});
    CHECK(deck.sections.size() == 2);
}

TEST_CASE("A second copy of another structured group is lifted into the record already there") {
    const GamessInput deck = read_silently(
        "$SYSTEM MWORDS=1 TIMLIM=1 $END\n$SYSTEM MEMDDI=2 TIMLIM=2 $END\n"
        "$BASIS GBASIS=N21 NGAUSS=3 $END\n$BASIS GBASIS=N31 BASNAM=X $END\n"
        "$SCF DIIS=.T. SOSCF=.T. $END\n$SCF SOSCF=.F. NCONV=8 $END\n"
        "$GUESS GUESS=HCORE $END\n$GUESS NORB=3 $END\n$GUESS MIX=.T. $END\n");
    CHECK(deck.system == SystemSection{1, 2, {{"TIMLIM", "1"}, {"TIMLIM", "2"}}});
    CHECK(deck.basis == BasisSection{"N31", 3, {}, {}, {}, {}, {}, {{"BASNAM", "X"}}});
    CHECK(deck.scf == ScfSection{{}, true, false, {}, {}, {{"NCONV", "8"}}});
    CHECK(deck.guess == GuessSection{"HCORE", 3, {{"MIX", ".T."}}});
    CHECK(deck.sections.size() == 9);
}

TEST_CASE("A structured group without an end is lifted as far as it goes") {
    const ParseResult result = read("$SCF DIIS=.T.\n SOSCF=.F.\n$GUESS NORB=3");
    CHECK(result.input.scf == ScfSection{{}, true, false, {}, {}, {}});
    CHECK(result.input.guess == GuessSection{{}, 3, {}});
}

TEST_CASE("A pair that comes about in the free text of a line is lifted and stays free text") {
    // What is left of the line is `NORB( $)=5`.
    const GamessInput deck = read("$GUESS\n NORB( A=(1$)=5\n$END").input;
    CHECK(deck.sections == Sections{{"GUESS", {{"A", "(1"}}, {"NORB( $)=5"}}});
    CHECK(deck.guess == GuessSection{{}, {}, {{"A", "(1"}, {"NORB( $)", "5"}}});
}
