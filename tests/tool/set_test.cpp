#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

TEST_CASE("A keyword is set and the deck written to standard output") {
    const Workplace place;
    CHECK(place.run({"set", "-", "contrl.runtyp=OPTIMIZE"},
                    {.input = " $CONTRL SCFTYP=RHF RUNTYP=ENERGY $END\n"}) ==
          Outcome{0, " $CONTRL SCFTYP=RHF RUNTYP=OPTIMIZE $END\n", ""});
}

TEST_CASE("Nothing but the value changes") {
    const Workplace place;
    const std::string front =
        "! a note in front\r\n $contrl\tscftyp=rhf,\r\n   ! maxit=99\r\n   maxit=";
    const std::string behind =
        "   ! how often\r\n  $end  tail\r\n\r\n $DATA\r\nTitle\r\nC1\r\nO 8.0\r\n $END\r\n"
        " $VEC\r\n 1  1 1.0-2.0\r\n $END\r\ncolophon";
    CHECK(place.run({"set", "-", "CONTRL.MAXIT=200"}, {.input = front + "30" + behind}) ==
          Outcome{0, front + "200" + behind, ""});
}

TEST_CASE("The deck is written to the file that -o names") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"set", "water.inp", "STATPT.OPTTOL=1.0E-6", "-o", "out.inp"}) ==
          Outcome{0, "", ""});
    std::string expected{water};
    expected.replace(expected.find("1.0E-5"), 6, "1.0E-6");
    CHECK(place.content_of("out.inp") == expected);
    CHECK(place.content_of("water.inp") == water);
    CHECK(place.names() == std::vector<std::string>{"out.inp", "water.inp"});
}

TEST_CASE("A dash behind -o is standard output") {
    const Workplace place;
    CHECK(place.run({"set", "-", "SCF.DIRSCF=.T.", "-o", "-"}, {.input = " $SCF $END\n"}).out ==
          " $SCF DIRSCF=.T. $END\n");
}

TEST_CASE("Several keywords are set at once, the last value of each counts") {
    const Workplace place;
    CHECK(place
              .run({"set", "-", "CONTRL.ICHARG=1", "STATPT.OPTTOL=2", "CONTRL.ICHARG=-1"},
                   {.input = " $CONTRL $END\n"})
              .out == " $CONTRL ICHARG=-1 $END\n $STATPT OPTTOL=2 $END\n");
}

TEST_CASE("A group that is missing comes in front of the molecule") {
    const Workplace place;
    CHECK(place.run({"set", "-", "SCF.DIRSCF=.T."}, {.input = " $DATA\nT\nC1\nH 1\n $END\n"}).out ==
          " $SCF DIRSCF=.T. $END\n $DATA\nT\nC1\nH 1\n $END\n");
}

TEST_CASE("A group is not added behind one that is not closed") {
    const Workplace place;
    CHECK(place.run({"set", "-", "SYSTEM.MWORDS=5"},
                    {.input = " $BASIS GBASIS=STO\n $DATA\nt\nC1\nHe 2 0 0 0\n $END\n"}) ==
          Outcome{2, "", "<stdin>: error: $SYSTEM.MWORDS: Section is not closed by $END: BASIS\n"});
}

TEST_CASE("A group that is added although GAMESS does not see the one of the deck is told") {
    const Workplace place;
    const std::string deck = "$SCF DIRSCF=.T. $END\n $CONTRL SCFTYP=RHF $END\n";
    CHECK(place.run({"set", "-", "SCF.MAXIT=2", "CONTRL.MULT=1"}, {.input = deck}) ==
          Outcome{0, "$SCF DIRSCF=.T. $END\n $CONTRL SCFTYP=RHF MULT=1 $END\n $SCF MAXIT=2 $END\n",
                  "<stdin>: note: $SCF is added; GAMESS does not see the one in line 1, whose $ is "
                  "not in column 2 behind a blank\n"});
}

TEST_CASE("A value may hold points, commas and blanks") {
    const Workplace place;
    const Outcome outcome = place.run({"set", "-", "PCM.A(2)=1.5,2.5", "PCM.NAME=two words"},
                                      {.input = " $PCM $END\n"});
    CHECK(outcome.out == " $PCM A(2)=1.5,2.5 NAME=two words $END\n");
}

TEST_CASE("Of repeated values the one that counts is set") {
    const Workplace place;
    CHECK(
        place.run({"set", "-", "SCF.NPUNCH=3"}, {.input = " $SCF NPUNCH=1 NPUNCH=2 $END\n"}).out ==
        " $SCF NPUNCH=1 NPUNCH=3 $END\n");
    CHECK(place.run({"set", "-", "STATPT.OPTTOL=3"},
                    {.input = " $STATPT OPTTOL=1 $END\n $STATPT OPTTOL=2 $END\n"}) ==
          Outcome{0, " $STATPT OPTTOL=1 $END\n $STATPT OPTTOL=3 $END\n", ""});
}

TEST_CASE("What is neither an assignment nor an existing file is wrong usage") {
    const Workplace place;
    place.make("water.inp", water);
    for (const std::string word : {"CONTRL", "CONTRL.SCFTYP", "missing.inp", ".", ""}) {
        CAPTURE(word);
        CHECK(place.run({"set", "water.inp", word, "SCF.DIRSCF=.T."}) ==
              Outcome{2, "",
                      "gms-inp: error: expected GROUP.KEY=VALUE or an existing file, not '" + word +
                          "'\n"});
    }
}

TEST_CASE("An assignment of another shape is wrong usage") {
    const Workplace place;
    place.make("water.inp", water);
    for (const std::string assignment :
         {"SCFTYP=RHF", ".SCFTYP=RHF", "CONTRL.=RHF",
          "CONTRL.SCFTYP=", "CONTRL.SCFTYP= ", "CONTRL=SCFTYP.RHF"}) {
        CAPTURE(assignment);
        CHECK(
            place.run({"set", "water.inp", assignment}) ==
            Outcome{2, "", "gms-inp: error: expected GROUP.KEY=VALUE, not '" + assignment + "'\n"});
    }
}

TEST_CASE("Decks and assignments are told apart in any order") {
    const Workplace place;
    place.make("a=b.inp", " $SCF MAXIT=1 $END\n");
    CHECK(place.run({"set", "SCF.MAXIT=2", "a=b.inp"}) == Outcome{0, " $SCF MAXIT=2 $END\n", ""});
    CHECK(place.run({"set", "SCF.MAXIT=2", "PCM.A=1"}) ==
          Outcome{2, "", "gms-inp: error: no deck is named\n"});
    CHECK(place.run({"set", "a=b.inp", "-"}) ==
          Outcome{2, "", "gms-inp: error: no GROUP.KEY=VALUE is given\n"});
}

TEST_CASE("The molecule and orbitals have no keywords to set") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"set", "water.inp", "DATA.X=1"}) ==
          Outcome{2, "", "water.inp: error: $DATA.X: $DATA does not support key=value editing\n"});
    CHECK(place.run({"set", "water.inp", "VEC.X=1"}) ==
          Outcome{2, "", "water.inp: error: $VEC.X: $VEC does not support key=value editing\n"});
}

TEST_CASE("A value that would read back as something else is refused") {
    const Workplace place;
    place.make("water.inp", water);
    for (const std::string value : {"1 B=2", "1 $END", "$1", "1 ! 2"}) {
        CAPTURE(value);
        CHECK(
            place.run({"set", "water.inp", "SCF.A=" + value, "-o", "out.inp"}) ==
            Outcome{2, "", "water.inp: error: $SCF.A: Value cannot be read back: " + value + "\n"});
        CHECK(place.names() == std::vector<std::string>{"water.inp"});
    }
    CHECK(place.run({"set", "water.inp", "MY GROUP.A=1"}).status == 2);
    CHECK(place.run({"set", "water.inp", "SCF.A B=1"}).status == 2);
}

TEST_CASE("What cannot be read is not edited") {
    const Workplace place;
    place.make("empty.inp", "");
    CHECK(place.run({"set", "missing.inp", "SCF.DIRSCF=.T.", "-o", "out.inp"}) ==
          Outcome{2, "", "gms-inp: error: cannot read missing.inp: No such file or directory\n"});
    CHECK(place.run({"set", "empty.inp", "SCF.DIRSCF=.T."}) ==
          Outcome{2, "",
                  "gms-inp: error: empty.inp: The input does not contain any GAMESS sections\n"});
    CHECK(place.names() == std::vector<std::string>{"empty.inp"});
}
