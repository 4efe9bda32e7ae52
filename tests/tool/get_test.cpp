#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

TEST_CASE("The value of a keyword is printed on a line") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"get", "water.inp", "CONTRL.SCFTYP"}) == Outcome{0, "RHF\n", ""});
    CHECK(place.run({"get", "water.inp", "statpt.opttol"}) == Outcome{0, "1.0E-5\n", ""});
}

TEST_CASE("Names may have a dollar sign and blanks around them") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"get", "water.inp", " $Basis . gbasis "}).out == "N31\n");
}

TEST_CASE("A group is printed in canonical layout") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"get", "water.inp", "basis"}).out == " $BASIS GBASIS=N31 NGAUSS=6 $END\n");
    CHECK(place.run({"get", "water.inp", "STATPT"}).out == " $STATPT OPTTOL=1.0E-5 $END\n");
}

TEST_CASE("The molecule is printed with one newline at its end") {
    const Workplace place;
    CHECK(place.run({"get", "-", "$DATA"}, {.input = "$DATA\nT\nC1\nH 1 0 0 0\n$END\n"}).out ==
          " $DATA\n"
          "T\n"
          "C1\n"
          " H    1.0      0.0000000000      0.0000000000      0.0000000000\n"
          " $END\n");
}

TEST_CASE("An empty group is there") {
    const Workplace place;
    CHECK(place.run({"get", "-", "SCF"}, {.input = " $SCF $END\n"}) ==
          Outcome{0, " $SCF $END\n", ""});
}

TEST_CASE("A group or keyword that is not there gives a message and status 1") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"get", "water.inp", "pcm"}) ==
          Outcome{1, "", "water.inp: error: $PCM is not in the deck\n"});
    CHECK(place.run({"get", "water.inp", "contrl.maxit"}) ==
          Outcome{1, "", "water.inp: error: $CONTRL.MAXIT is not in the deck\n"});
    CHECK(place.run({"get", "water.inp", "data.x"}) ==
          Outcome{1, "", "water.inp: error: $DATA.X is not in the deck\n"});
}

TEST_CASE("A path without a group or with an empty keyword is wrong usage") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"get", "water.inp", ".SCFTYP"}) ==
          Outcome{2, "", "gms-inp: error: expected GROUP or GROUP.KEY, not '.SCFTYP'\n"});
    CHECK(place.run({"get", "water.inp", "CONTRL."}) ==
          Outcome{2, "", "gms-inp: error: expected GROUP or GROUP.KEY, not 'CONTRL.'\n"});
    CHECK(place.run({"get", "water.inp", "$"}) ==
          Outcome{2, "", "gms-inp: error: expected GROUP or GROUP.KEY, not '$'\n"});
}

TEST_CASE("A repeated generic group is said to be looked at in part") {
    const Workplace place;
    CHECK(place.run({"get", "-", "STATPT.OPTTOL"},
                    {.input = " $STATPT OPTTOL=1 $END\n $STATPT OPTTOL=2 $END\n"}) ==
          Outcome{0, "1\n",
                  "<stdin>: note: $STATPT occurs 2 times; only the first one is looked at\n"});
}

TEST_CASE("Bytes of values pass through unchanged when the output is no terminal") {
    const Workplace place;
    CHECK(place.run({"get", "-", "PCM.NAME"}, {.input = " $PCM NAME=a\033\xE9\x01 b $END\n"}).out ==
          "a\033\xE9\x01 b\n");
}
