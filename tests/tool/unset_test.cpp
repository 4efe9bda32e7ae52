#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

TEST_CASE("A keyword is removed") {
    const Workplace place;
    CHECK(place.run({"unset", "-", "contrl.scftyp"},
                    {.input = " $CONTRL SCFTYP=RHF RUNTYP=ENERGY $END\n"}) ==
          Outcome{0, " $CONTRL RUNTYP=ENERGY $END\n", ""});
}

TEST_CASE("A keyword is removed with all its values") {
    const Workplace place;
    CHECK(place.run({"unset", "-", "PCM.A"}, {.input = " $PCM A=1 B=0 A=2 $END\n"}).out ==
          " $PCM B=0 $END\n");
    CHECK(place
              .run({"unset", "-", "CONTRL.ICHARG"},
                   {.input = " $CONTRL ICHARG=x RUNTYP=ENERGY ICHARG=1 $END\n"})
              .out == " $CONTRL RUNTYP=ENERGY $END\n");
}

TEST_CASE("A group is removed with all its copies") {
    const Workplace place;
    CHECK(place
              .run({"unset", "-", "$pcm", "SCF"},
                   {.input = " $PCM A=1 $END\n $SCF DIRSCF=.T. $END\n $DFT X=1 $END\n"
                             " $PCM A=2 $END\n"})
              .out == " $DFT X=1 $END\n");
}

TEST_CASE("The molecule is removed as a group") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"unset", "water.inp", "DATA", "STATPT"}).out ==
          " $CONTRL SCFTYP=RHF RUNTYP=ENERGY $END\n $BASIS GBASIS=N31 NGAUSS=6 $END\n");
}

TEST_CASE("The deck without the keyword is written to the file that -o names") {
    const Workplace place;
    place.make("a.inp", " $PCM A=1 B=2 $END\n");
    CHECK(place.run({"unset", "a.inp", "PCM.B", "--output", "b.inp"}) == Outcome{0, "", ""});
    CHECK(place.content_of("b.inp") == " $PCM A=1 $END\n");
}

TEST_CASE("When something named is not there, all of that is named and nothing is written") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"unset", "water.inp", "PCM", "CONTRL.SCFTYP", "CONTRL.MAXIT", "PCM.A", "-o",
                     "out.inp"}) == Outcome{1, "",
                                            "water.inp: error: $PCM is not in the deck\n"
                                            "water.inp: error: $CONTRL.MAXIT is not in the deck\n"
                                            "water.inp: error: $PCM.A is not in the deck\n"});
    CHECK(place.names() == std::vector<std::string>{"water.inp"});
}

TEST_CASE("A keyword is removed from the first copy of a repeated generic group, with a note") {
    const Workplace place;
    CHECK(place.run({"unset", "-", "PCM.A"}, {.input = " $PCM A=1 B=0 $END\n $PCM A=2 $END\n"}) ==
          Outcome{0, " $PCM B=0 $END\n $PCM A=2 $END\n",
                  "<stdin>: note: $PCM occurs 2 times; only the first one is looked at\n"});
}

TEST_CASE("Naming something twice removes it once") {
    const Workplace place;
    CHECK(place.run({"unset", "-", "PCM.A", "PCM.A"}, {.input = " $PCM A=1 B=2 $END\n"}).out ==
          " $PCM B=2 $END\n");
}

TEST_CASE("A path of another shape is wrong usage for unset") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"unset", "water.inp", "CONTRL."}) ==
          Outcome{2, "", "gms-inp: error: expected GROUP or GROUP.KEY, not 'CONTRL.'\n"});
}

TEST_CASE("Removing everything leaves an empty text") {
    const Workplace place;
    CHECK(place.run({"unset", "-", "PCM"}, {.input = " $PCM A=1 $END\n"}) == Outcome{0, "", ""});
}
