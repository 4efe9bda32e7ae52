#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::as_written;
using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

TEST_CASE("A keyword is set and the deck written to standard output") {
    const Workplace place;
    CHECK(place.run({"set", "-", "contrl.runtyp=optimize"},
                    {.input = " $CONTRL SCFTYP=RHF RUNTYP=ENERGY $END\n"}) ==
          Outcome{0, " $CONTRL SCFTYP=RHF RUNTYP=OPTIMIZE $END\n", ""});
}

TEST_CASE("The deck is written to the file that -o names") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"set", "water.inp", "STATPT.OPTTOL=1.0E-6", "-o", "out.inp"}) ==
          Outcome{0, "", ""});
    std::string expected = as_written(water);
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

TEST_CASE("A value may hold points, equals signs, commas and blanks") {
    const Workplace place;
    const Outcome outcome =
        place.run({"set", "-", "PCM.A(1)=1.5,2.5", "PCM.NAME=two words", "PCM.B=x=-y"},
                  {.input = " $PCM $END\n"});
    CHECK(outcome.out == " $PCM A(1)=1.5,2.5 NAME=two words B=x=-y $END\n");
}

TEST_CASE("All values of a keyword that is given several times are replaced by one") {
    const Workplace place;
    CHECK(
        place.run({"set", "-", "SCF.NPUNCH=3"}, {.input = " $SCF NPUNCH=1 NPUNCH=2 $END\n"}).out ==
        " $SCF NPUNCH=3 $END\n");
    CHECK(place.run({"set", "-", "PCM.A=3"}, {.input = " $PCM A=1 B=0 A=2 $END\n"}).out ==
          " $PCM B=0 A=3 $END\n");
    CHECK(place.run({"set", "-", "CONTRL.ICHARG=3"}, {.input = " $CONTRL ICHARG=x ICHARG=1 $END\n"})
              .out == " $CONTRL ICHARG=3 $END\n");
}

TEST_CASE("An assignment of another shape is wrong usage") {
    const Workplace place;
    place.make("water.inp", water);
    for (const std::string assignment :
         {"CONTRL", "CONTRL.SCFTYP", "SCFTYP=RHF", ".SCFTYP=RHF", "CONTRL.=RHF",
          "CONTRL.SCFTYP=", "CONTRL.SCFTYP= ", "CONTRL=SCFTYP.RHF", ""}) {
        CAPTURE(assignment);
        CHECK(
            place.run({"set", "water.inp", assignment}) ==
            Outcome{2, "", "gms-inp: error: expected GROUP.KEY=VALUE, not '" + assignment + "'\n"});
    }
}

TEST_CASE("The molecule has no keywords to set") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"set", "water.inp", "DATA.X=1"}) ==
          Outcome{2, "", "gms-inp: error: $DATA does not support key=value editing\n"});
}

TEST_CASE("A value that would read back as something else is refused") {
    const Workplace place;
    place.make("water.inp", water);
    for (const std::string assignment :
         {"SCF.A=1 B=2", "SCF.A=1 $END", "SCF.A=$1", "SCF.A-B=1", "MY GROUP.A=1"}) {
        CAPTURE(assignment);
        const Outcome outcome = place.run({"set", "water.inp", assignment, "-o", "out.inp"});
        CHECK(outcome == Outcome{2, "",
                                 "gms-inp: error: cannot be written so that it reads back: $" +
                                     assignment + "\n"});
        CHECK(place.names() == std::vector<std::string>{"water.inp"});
    }
}

TEST_CASE("Only the first copy of a repeated generic group is edited, with a note") {
    const Workplace place;
    CHECK(place.run({"set", "-", "STATPT.OPTTOL=3", "STATPT.NSTEP=5"},
                    {.input = " $STATPT OPTTOL=1 $END\n $STATPT OPTTOL=2 $END\n"}) ==
          Outcome{0, " $STATPT OPTTOL=3 NSTEP=5 $END\n $STATPT OPTTOL=2 $END\n",
                  "<stdin>: note: $STATPT occurs 2 times; only the first one is looked at\n"});
}

TEST_CASE("What the canonical layout leaves out is told on standard error") {
    const Workplace place;
    CHECK(place.run({"set", "-", "SCF.DIRSCF=.T."}, {.input = "comment\n $SCF $END done\n"}) ==
          Outcome{0, " $SCF DIRSCF=.T. $END\n",
                  "<stdin>: note: 1 line of text outside the groups is left out\n"
                  "<stdin>: note: 1 text behind $END is left out\n"});
}

TEST_CASE("What cannot be read is not edited") {
    const Workplace place;
    CHECK(place.run({"set", "missing.inp", "SCF.DIRSCF=.T.", "-o", "out.inp"}) ==
          Outcome{2, "", "gms-inp: error: cannot read missing.inp: No such file or directory\n"});
    CHECK(place.names().empty());
}
