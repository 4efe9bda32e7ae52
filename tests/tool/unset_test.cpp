#include <doctest/doctest.h>

#include "tool/workplace.hpp"

using nurl::test::Outcome;
using nurl::test::water;
using nurl::test::Workplace;

TEST_CASE("A keyword is removed and nothing else") {
    const Workplace place;
    CHECK(place.run({"unset", "-", "contrl.scftyp"},
                    {.input = "note\n $CONTRL SCFTYP=RHF  RUNTYP=ENERGY ! why\n $end tail\n"}) ==
          Outcome{0, "note\n $CONTRL  RUNTYP=ENERGY ! why\n $end tail\n", ""});
}

TEST_CASE("A keyword is removed with all its values from all copies of its group") {
    const Workplace place;
    CHECK(place.run({"unset", "-", "PCM.A"},
                    {.input = " $PCM A=1 B=0 A=2 $END\n $PCM A=3 C=0 $END\n"}) ==
          Outcome{0, " $PCM B=0 $END\n $PCM C=0 $END\n", ""});
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

TEST_CASE("A group that GAMESS does not see is not there to be removed") {
    const Workplace place;
    CHECK(place.run({"unset", "-", "SCF"}, {.input = "$SCF A=1 $END\n"}) ==
          Outcome{1, "",
                  "<stdin>: error: $SCF is not in the deck; GAMESS does not see the one in line 1, "
                  "whose $ is not in column 2 behind a blank\n"});
}

TEST_CASE("Naming something twice removes it once") {
    const Workplace place;
    CHECK(place.run({"unset", "-", "PCM.A", "PCM.A"}, {.input = " $PCM A=1 B=2 $END\n"}).out ==
          " $PCM B=2 $END\n");
}

TEST_CASE("A path of another shape is wrong usage for unset") {
    const Workplace place;
    place.make("water.inp", water);
    for (const std::string path : {"CONTRL.", ".A", "VEC#1", "."}) {
        CAPTURE(path);
        CHECK(place.run({"unset", "water.inp", path}) ==
              Outcome{2, "", "gms-inp: error: expected GROUP or GROUP.KEY, not '" + path + "'\n"});
    }
}

TEST_CASE("Existing files are decks until a word names none") {
    const Workplace place;
    place.make("a.inp", " $SCF A=1 $END\n $PCM $END\n");
    place.make("b.inp", " $SCF B=1 $END\n $PCM $END\n");
    CHECK(place.run({"unset", "-i", "a.inp", "b.inp", "SCF", "PCM"}) == Outcome{0, "", ""});
    CHECK(place.content_of("a.inp").empty());
    CHECK(place.content_of("b.inp").empty());
}

TEST_CASE("A dollar sign and the last place make a path of what is a file, too") {
    const Workplace place;
    place.make("a.inp", " $SCF A=1 $END\n $PCM B=1 $END\n $DFT C=1 $END\n");
    place.make("SCF", "a file");
    place.make("$PCM", "a file");
    std::filesystem::create_directory(place.path() / "DFT");
    CHECK(place.run({"unset", "a.inp", "SCF"}).out == " $PCM B=1 $END\n $DFT C=1 $END\n");
    CHECK(place.run({"unset", "a.inp", "$PCM", "SCF"}).out == " $DFT C=1 $END\n");
    CHECK(place.run({"unset", "a.inp", "DFT", "SCF"}).out == " $PCM B=1 $END\n");
}

TEST_CASE("Removing everything leaves an empty text") {
    const Workplace place;
    CHECK(place.run({"unset", "-", "PCM"}, {.input = " $PCM A=1 $END\n"}) == Outcome{0, "", ""});
}
