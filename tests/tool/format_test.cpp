#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

namespace {

/// A line of 85 columns that is folded behind 77.
const std::string long_deck =
    "note\n $CONTRL SCFTYP=RHF RUNTYP=ENERGY ICHARG=0 MULT=1 COORD=UNIQUE UNITS=ANGS "
    "MAXIT=30 $END\n";
const std::string folded_deck =
    "note\n $CONTRL SCFTYP=RHF RUNTYP=ENERGY ICHARG=0 MULT=1 COORD=UNIQUE UNITS=ANGS\n"
    " MAXIT=30 $END\n";

}  // namespace

TEST_CASE("Lines that GAMESS would cut are folded") {
    const Workplace place;
    CHECK(place.run({"format", "-"}, {.input = long_deck}) == Outcome{0, folded_deck, ""});
    CHECK(place.run({"format", "--wrap", "80", "-"}, {.input = long_deck}).out == folded_deck);
    CHECK(place.run({"format", "--wrap=80", "-"}, {.input = long_deck}).out == folded_deck);
}

TEST_CASE("Another number of columns may be asked for") {
    const Workplace place;
    CHECK(place
              .run({"format", "--wrap=24", "-"},
                   {.input = " $CONTRL SCFTYP=RHF RUNTYP=ENERGY $END\n"})
              .out == " $CONTRL SCFTYP=RHF\n RUNTYP=ENERGY $END\n");
    CHECK(place.run({"format", "--wrap=100", "-"}, {.input = long_deck}).out == long_deck);
}

TEST_CASE("What is no number of columns is wrong usage") {
    const Workplace place;
    for (const std::string columns : {"0", "-1", "wide", "80x", "99999999999999999999"}) {
        CAPTURE(columns);
        CHECK(place.run({"format", "--wrap=" + columns, "-"}, {.input = long_deck}) ==
              Outcome{2, "",
                      "gms-inp: error: expected a number of columns, not '" + columns + "'\n"});
    }
}

TEST_CASE("A deck with short lines comes out byte by byte") {
    const Workplace place;
    const std::string deck = "note\r\n$scf dirscf=.t. $end x\r\n $DATA\r\n\r\nC1\r\nH 1\r\n $end";
    CHECK(place.run({"format", "-"}, {.input = deck}) == Outcome{0, deck, ""});
}

TEST_CASE("The formatted deck is written to the file that -o names or in place") {
    const Workplace place;
    place.make("a.inp", long_deck);
    CHECK(place.run({"format", "a.inp", "-o", "b.inp"}) == Outcome{0, "", ""});
    CHECK(place.content_of("b.inp") == folded_deck);
    CHECK(place.content_of("a.inp") == long_deck);
    CHECK(place.run({"format", "-i", "a.inp", "b.inp"}) == Outcome{0, "", ""});
    CHECK(place.content_of("a.inp") == folded_deck);
}

TEST_CASE("Checking lists the decks that would change and writes nothing") {
    const Workplace place;
    place.make("a.inp", long_deck);
    place.make("b.inp", folded_deck);
    place.make("c\a.inp", long_deck);
    CHECK(place.run({"format", "--check", "a.inp", "b.inp", "c\a.inp"}) ==
          Outcome{1, "a.inp\nc\\x07.inp\n", ""});
    CHECK(place.run({"format", "--check", "b.inp"}) == Outcome{0, "", ""});
    CHECK(place.run({"format", "--check", "-i", "a.inp"}) == Outcome{1, "a.inp\n", ""});
    CHECK(place.run({"format", "--check", "a.inp", "missing.inp"}) ==
          Outcome{2, "a.inp\n",
                  "gms-inp: error: cannot read missing.inp: No such file or directory\n"});
    CHECK(place.run({"format", "--check", "-"}, {.input = long_deck}) ==
          Outcome{1, "<stdin>\n", ""});
    CHECK(place.content_of("a.inp") == long_deck);
}

TEST_CASE("What is no deck is not formatted") {
    const Workplace place;
    const Outcome refused{
        2, "", "gms-inp: error: <stdin>: The input does not contain any GAMESS sections\n"};
    CHECK(place.run({"format", "-", "-o", "b.inp"}, {.input = "nothing\n"}) == refused);
    CHECK(place.run({"format", "--canonical", "-"}, {.input = "nothing\n"}) == refused);
    CHECK(place.names().empty());
}

TEST_CASE("A deck in canonical layout comes out as it is") {
    const Workplace place;
    place.make("water.inp", water);
    CHECK(place.run({"format", "--canonical", "water.inp"}) == Outcome{0, std::string{water}, ""});
    CHECK(place.run({"format", "--canonical", "--check", "water.inp"}) == Outcome{0, "", ""});
}

TEST_CASE("The canonical layout keeps lines of blanks that are more than the one of its end") {
    const Workplace place;
    for (const std::string ending :
         {" \n $END\n", " $END\n $DATA\n $END\n", " S 3 $END\n", "$END\n"}) {
        CAPTURE(ending);
        const std::string deck = " $DATA\nTitle\nC1\n" + ending;
        const std::string once =
            place.run({"format", "--canonical", "--force", "-"}, {.input = deck}).out;
        CHECK(place.run({"format", "--canonical", "--force", "-"}, {.input = once}).out == once);
    }
    CHECK(
        place.run({"format", "--canonical", "-"}, {.input = " $DATA\nTitle\nC1\n \n $END\n"}).out ==
        " $DATA\nTitle\nC1\n \n $END\n");
}

TEST_CASE("In canonical layout groups are on one line, upper case, the molecule last") {
    const Workplace place;
    CHECK(place
              .run({"format", "--canonical", "--force", "-"},
                   {.input = " $data\nTitle\nC1\nh 1 0 0 1.5\n $end\n"
                             " $contrl runtyp=energy\n scftyp=rhf $end\n"})
              .out ==
          " $CONTRL SCFTYP=RHF RUNTYP=ENERGY $END\n"
          " $DATA\n"
          "Title\n"
          "C1\n"
          " H    1.0      0.0000000000      0.0000000000      1.5000000000\n"
          " $END\n");
}

TEST_CASE("What the canonical layout loses is listed, and written by force only") {
    const Workplace place;
    place.make("a.inp", "one\n $SCF DIRSCF=.T. $END two\n");
    const std::string notes =
        "a.inp: note: 1 line of text outside the groups is left out\n"
        "a.inp: note: 1 text behind $END is left out\n";
    CHECK(
        place.run({"format", "--canonical", "a.inp", "-o", "b.inp"}) ==
        Outcome{2, "",
                notes + "a.inp: error: not written because of these losses; --force writes it\n"});
    CHECK(place.names() == std::vector<std::string>{"a.inp"});
    CHECK(place.run({"format", "--canonical", "--force", "a.inp", "-o", "b.inp"}) ==
          Outcome{0, "", notes});
    CHECK(place.content_of("b.inp") == " $SCF DIRSCF=.T. $END\n");
    CHECK(place.run({"format", "--canonical", "--force", "-i", "a.inp"}) == Outcome{0, "", notes});
    CHECK(place.content_of("a.inp") == " $SCF DIRSCF=.T. $END\n");
}

TEST_CASE("A canonical layout that GAMESS reads differently is said to be so") {
    const Workplace place;
    CHECK(place.run({"format", "--canonical", "-"},
                    {.input = "$SCF DIRSCF=.T. NPUNCH=1 $END\n $CONTRL SCFTYP=RHF $END\n"}) ==
          Outcome{2, "",
                  "<stdin>: note: GAMESS reads the written deck differently in 1 place, first at "
                  "SCF\n"
                  "<stdin>: error: not written because of these losses; --force writes it\n"});
}

TEST_CASE("Decks that are not in canonical layout are listed without a word on losses") {
    const Workplace place;
    place.make("a.inp", "one\n $SCF DIRSCF=.T. $END\n");
    place.make("b.inp", " $SCF DIRSCF=.T. $END\n");
    CHECK(place.run({"format", "--canonical", "--check", "a.inp", "b.inp"}) ==
          Outcome{1, "a.inp\n", ""});
}

TEST_CASE("Folding and canonical layout exclude each other, and force needs the latter") {
    const Workplace place;
    place.make("a.inp", long_deck);
    CHECK(place.run({"format", "--canonical", "--wrap", "80", "a.inp"}).status == 2);
    CHECK(place.run({"format", "--force", "a.inp"}).status == 2);
}
