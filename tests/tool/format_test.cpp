#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::as_written;
using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

TEST_CASE("A deck in canonical layout comes out as it is, but for a line of blanks") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"format", "water.inp"}) == Outcome{0, as_written(water), ""});
}

TEST_CASE("Groups come out on one line, upper case, the molecule last") {
    const Workplace place;
    CHECK(place
              .run({"format", "-"}, {.input = "$data\nTitle\nC1\nh 1 0 0 1.5\n$end\n"
                                              "$contrl runtyp=energy\n scftyp=rhf $end\n"})
              .out ==
          " $CONTRL SCFTYP=RHF RUNTYP=ENERGY $END\n"
          " $DATA\n"
          "Title\n"
          "C1\n"
          " H    1.0      0.0000000000      0.0000000000      1.5000000000\n"
          " $END\n");
}

TEST_CASE("The formatted deck is written to the file that -o names") {
    const Workplace place;
    place.make("a.inp", "$scf dirscf=.t. $end\n");
    CHECK(place.run({"format", "a.inp", "-o", "b.inp"}) == Outcome{0, "", ""});
    CHECK(place.content_of("b.inp") == " $SCF DIRSCF=.T. $END\n");
}

TEST_CASE("What is no deck is not formatted") {
    const Workplace place;
    CHECK(place.run({"format", "-", "-o", "b.inp"}, {.input = "nothing\n"}) ==
          Outcome{2, "",
                  "gms-inp: error: <stdin>: The input does not contain any GAMESS sections\n"});
    CHECK(place.names().empty());
}
